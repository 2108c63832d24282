// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cplugincombcomponentbase.h"

#include <functional>

namespace appPlugins {

class ParameterTextWithOrderOfMagnitude;

/// A real parameter with limits. All numbers are in the base unit of the parameter (volts,
/// seconds); values lie on the grid of the resolution. What is outside the limits never stays: the
/// nearest limit takes its place, and the owner is told by sgnRealParameterIllegal().
class APPPLUGINS_EXPORT RealCombComponent : public CPluginCombComponentBase
{
    Q_OBJECT

public:
    /// What a value is to the limits of its parameter.
    enum VALUE_ERROR { VALUE_OK = 0, VALUE_UNDERMIN = 1, VALUE_OVERMAX = 2 };

    /// The two limits may come in either order. A default above them starts at the maximum; one
    /// below the minimum is kept.
    RealCombComponent(QWidget* parent, const char* titleStrId, bool titleCheckable,
                      const char* unitStrId, ENUM_UNIT_TYPE unitType, double defaultValue,
                      double absoluteMax, double absoluteMin, double resolution);
    ~RealCombComponent() override;

    /// Shows a value without a signal of change. False, with nothing done, while disabled; false
    /// for a value outside the limits, which emits sgnRealParameterIllegal() and shows the nearest
    /// limit.
    bool set(double value);
    double get() const { return m_dbValue; }
    /// The digits on show with their prefix: "1.000000m".
    QString getStringValue() const;
    /// Takes away what is typed and not confirmed and shows the value that is held.
    void redraw();
    double getResolution() const { return m_dbResolution; }

    /// Sets the limits, in either order, and pulls the value into them silently. Nothing while
    /// disabled.
    void setMaxMinValue(double limit, double otherLimit);
    void getMaxMinValue(double& max, double& min) const;
    /// The limits on the grid of the resolution.
    void getRoundedMaxMin(double& max, double& min) const;

    /// Tolerates what lies beyond a limit by rounding noise alone.
    VALUE_ERROR checkInput(double value) const;
    /// The nearest multiple of the resolution, halves away from zero.
    double round(double value) const;
    /// Shows a value as it is.
    void actualSet(double value);

    void setCombComponentsHorLayout(int title, int input, int unit, int spacing) override;
    void setDisable(bool disable) override;

Q_SIGNALS:
    /// A value outside the limits was entered or set; carries that value.
    void sgnRealParameterIllegal(double value);
    /// The digits got the focus; carries the component's object name.
    void sgn_editorFocusIn(QString name);
    void sgn_editorFocusOut();

public Q_SLOTS:
    /// The user committed a value or turned the knob; in resolution steps.
    virtual void slt_editingFinished(long long valueLL);
    virtual void slt_editorFocusIn();

public:
    /// Pulls a value into the limits and shows it.
    virtual void validate(double value);

protected:
    /// Tells the owner of a legal value that the user made.
    virtual void reportChange();

    ParameterTextWithOrderOfMagnitude* m_pParamTextEdit;
    double m_dbResolution;
    double m_dbValue;
    double m_dbMaxValue;
    double m_dbMinValue;

    static const QString m_strSelfStyleSheet;

private:
    void silently(const std::function<void()>& show);

    bool m_bSilent = false;
};

/// A real component with whole numbers: its resolution is 1 or another whole number.
class APPPLUGINS_EXPORT IntegerCombComponent : public RealCombComponent
{
    Q_OBJECT

public:
    IntegerCombComponent(QWidget* parent, const char* titleStrId, bool titleCheckable,
                         const char* unitStrId, ENUM_UNIT_TYPE unitType, int defaultValue,
                         int absoluteMax, int absoluteMin, int resolution);
};

/// The real component inside a table cell. The knob changes its value silently; one paraChanged()
/// follows when the knob is pressed or Return is hit. Typed values are reported at once.
class APPPLUGINS_EXPORT TabelRealCombComponent : public RealCombComponent
{
    Q_OBJECT

public:
    TabelRealCombComponent(QWidget* parent, const char* titleStrId, bool titleCheckable,
                           const char* unitStrId, ENUM_UNIT_TYPE unitType, double defaultValue,
                           double absoluteMax, double absoluteMin, double resolution);

    void setCombComponentsHorLayout(int title, int input, int unit, int spacing) override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void reportChange() override;

private:
    bool m_bKnobRotating = false;
};

} // namespace appPlugins
