// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "appplugins_export.h"
#include "apptypes.h"

#include <QLabel>

class QHBoxLayout;

namespace appPlugins {

class CSwitchLabel;

/// One row of a form: a title on the left, an input in the middle, a unit on the right. Members of
/// the family add the input. Follows a change of language.
///
/// The signals tell of changes that the user made; what a program sets is silent. A disabled
/// component takes no input and ignores its set().
class APPPLUGINS_EXPORT CPluginCombComponentBase : public QLabel
{
    Q_OBJECT

public:
    /// The identifiers of title and unit may be null and must outlive the component.
    CPluginCombComponentBase(QWidget* parent, const char* titleStrId, bool titleCheckable,
                             const char* unitStrId);

    /// Stretch of title, input and unit, and the pixels between them; nothing unless the row holds
    /// just these three.
    virtual void setCombComponentsHorLayout(int title, int input, int unit, int spacing);

    /// Disables or enables title, unit and component; members add their input.
    virtual void setDisable(bool disable);

    /// Whether the component is enabled.
    virtual bool isAvailable();

    /// Index of the component in a stack of components.
    int getStackedIndex() const { return m_nStackedIndex; }
    void setStackedIndex(int index) { m_nStackedIndex = index; }

Q_SIGNALS:
    void paraChanged(QString value);
    void paraChanged(double value);
    void paraChanged(Uint16 value);
    void paraChanged(const char* saveStrId);
    void triggered();
    /// The title was tapped; carries the component's index in its stack.
    void sgnTitleSwitchLabelClicked(int stackedIndex);

public Q_SLOTS:
    void slt_TitleSwitchLabelClicked();

protected:
    /// Puts title, @p input and unit into the row.
    void addInput(QWidget* input, int title, int inputStretch, int unit);
    void changeEvent(QEvent* event) override;

    int m_nStackedIndex = 0;
    CSwitchLabel* m_pTitleLabel;
    QLabel* m_pUnitLabel;
    QHBoxLayout* m_pHLayout;
    const char* m_sTitleStrId;
    const char* m_sUnitStrId;

    static const QString sm_unitStyleSheet;

private:
    void createTitle(bool checkable);
    void createUnitLabel();
};

} // namespace appPlugins
