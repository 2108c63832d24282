// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

#include <functional>

class QLabel;

namespace appPlugins {
class CUnit;
}

/// A unit selector to try the unit keys on, with the answer that it gives to each. It stands in for
/// the numeric editor that a selector otherwise belongs to. Follows a change of language.
class UnitTrial : public QWidget
{
    Q_OBJECT

public:
    /// Makes a selector of one family.
    using Make = std::function<appPlugins::CUnit*(QWidget* parent)>;

    UnitTrial(QWidget* parent, const Make& make);

    appPlugins::CUnit* selector() const { return m_pSelector; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void answer(const char* textId);

    appPlugins::CUnit* m_pSelector;
    QLabel* m_pAnswer;
    const char* m_answerId = nullptr;
};
