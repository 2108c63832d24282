// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "parameteredit.h"
#include "toolkitform.h"

#include <QSignalSpy>
#include <QTextBlock>

/// A numeric editor in a form of its own, beside a second input that can take the focus, and what
/// the editor reports.
struct NumericEditor
{
    NumericEditor(ENUM_UNIT_TYPE unitType, double value, double resolution)
        : editor(form.add(new appPlugins::ParameterTextWithOrderOfMagnitude(&form, value, unitType,
                                                                            resolution)))
        , other(form.add(
              new appPlugins::ParameterTextWithOrderOfMagnitude(&form, 0, UNIT_TIME, 1e-12)))
        , reported(editor, &appPlugins::ParameterTextWithOrderOfMagnitude::parameterChanged)
        , valueSet(editor, &appPlugins::ParameterTextWithOrderOfMagnitude::valueChanged)
        , focusIn(editor, &appPlugins::ParameterTextWithOrderOfMagnitude::sgn_editorFocusIn)
        , focusOut(editor, &appPlugins::ParameterTextWithOrderOfMagnitude::sgn_editorFocusOut)
    {
        form.start();
    }

    /// Taps the digits and puts the cursor on the character at @p position.
    void focusOn(int position)
    {
        FrontPanel::tap(digits()->viewport());
        QTextCursor cursor = digits()->textCursor();
        cursor.setPosition(position);
        digits()->setTextCursor(cursor);
    }

    appPlugins::ParameterTextEdit* digits() const { return editor->textEdit(); }
    appPlugins::CUnit* unit() const { return editor->unitLabel(); }

    /// Digits and prefix as a user sees them.
    QString shown() const { return digits()->toPlainText() + unit()->text(); }

    /// Positions of the underlined characters.
    QVector<int> underlined() const
    {
        QVector<int> positions;
        QTextCursor cursor(digits()->document());
        for (int i = 0; i < digits()->toPlainText().size(); ++i) {
            cursor.setPosition(i + 1);
            if (cursor.charFormat().underlineStyle() == QTextCharFormat::SingleUnderline)
                positions.append(i);
        }
        return positions;
    }

    QVector<long long> reports() const
    {
        QVector<long long> values;
        for (const QList<QVariant>& arguments : reported)
            values.append(arguments.first().toLongLong());
        return values;
    }

    ToolkitForm form;
    appPlugins::ParameterTextWithOrderOfMagnitude* editor;
    appPlugins::ParameterTextWithOrderOfMagnitude* other;
    QSignalSpy reported;
    QSignalSpy valueSet;
    QSignalSpy focusIn;
    QSignalSpy focusOut;
};
