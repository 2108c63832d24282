// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cplugincombcomponentbase.h"

#include <functional>

namespace appPlugins {

class ParameterTextWithOrderOfMagnitude;

/// A real parameter with limits. All numbers are in the base unit of the parameter (volts,
/// seconds); values lie on the grid of the resolution. What is outside the limits never stays: the
/// nearest limit takes its place, and the owner is told by sgnRealParameterIllegal(). A legal value
/// that the user entered or turned the knob to is reported by paraChanged(double).
///
/// @code
/// // 0 at first, up to 1 s, in steps of 1 ns
/// auto* delay = new RealCombComponent(this, TR_STR_ID_TRIG_DELAY, false, TR_ARBID_UNIT_S,
///                                     UNIT_TIME, 0, 1, 0, 1e-9);
/// delay->setObjectName("trigger delay");
/// connect(delay, QOverload<double>::of(&RealCombComponent::paraChanged), this,
///         [](double seconds) { qDebug() << seconds; });
/// connect(delay, &RealCombComponent::sgnRealParameterIllegal, this,
///         [](double seconds) { g_warningMessage(rangeWarning(seconds, 0, 1)); });
/// @endcode
class APPPLUGINS_EXPORT RealCombComponent : public CPluginCombComponentBase
{
    Q_OBJECT

public:
    /// What a value is to the limits of its parameter.
    enum VALUE_ERROR {
        VALUE_OK = 0,       ///< within the limits
        VALUE_UNDERMIN = 1, ///< below the minimum
        VALUE_OVERMAX = 2   ///< above the maximum
    };

    /// @p unitType chooses the prefixes, @p resolution is a power of ten. The two limits may come
    /// in either order. A default above them starts at the maximum; one below the minimum is kept.
    RealCombComponent(QWidget* parent, const char* titleStrId, bool titleCheckable,
                      const char* unitStrId, ENUM_UNIT_TYPE unitType, double defaultValue,
                      double absoluteMax, double absoluteMin, double resolution);
    /// Reports nothing any more.
    ~RealCombComponent() override;

    /// Shows a value, rounded to the resolution, without a signal of change. False, with nothing
    /// done, while disabled; false for a value outside the limits, which emits
    /// sgnRealParameterIllegal() and shows the nearest limit.
    bool set(double value);
    /// The value held; what is typed and not confirmed is not part of it.
    double get() const { return m_dbValue; }
    /// The digits on show with their prefix: "1.000000m".
    QString getStringValue() const;
    /// Takes away what is typed and not confirmed and shows the value that is held.
    void redraw();
    /// Step of the grid that values lie on.
    double getResolution() const { return m_dbResolution; }

    /// Sets the limits, in either order, and pulls the value into them silently. Nothing while
    /// disabled.
    void setMaxMinValue(double limit, double otherLimit);
    /// The limits as they were given.
    void getMaxMinValue(double& max, double& min) const;
    /// The limits on the grid of the resolution.
    void getRoundedMaxMin(double& max, double& min) const;

    /// What @p value is to the limits. What lies beyond a limit by rounding noise alone is within
    /// (see limitPlusSafety()).
    VALUE_ERROR checkInput(double value) const;
    /// The nearest multiple of the resolution, halves away from zero; see DBRound().
    double round(double value) const;
    /// Holds and shows a value without rounding or limits, also while disabled; nothing for the one
    /// held. Called while the digits have the focus it is reported like an entry of the user: a
    /// program uses set().
    void actualSet(double value);

    /// As for the base; the digits and their prefix then share the input as 3 to 2.
    void setCombComponentsHorLayout(int title, int input, int unit, int spacing) override;
    /// Disables or enables the row with its digits.
    void setDisable(bool disable) override;

Q_SIGNALS:
    /// A value outside the limits was entered by the user or set by a program; carries that value,
    /// rounded. The nearest limit is shown right after.
    void sgnRealParameterIllegal(double value);
    /// The digits got the focus; carries the component's object name.
    void sgn_editorFocusIn(QString name);
    /// The digits lost the focus.
    void sgn_editorFocusOut();

public Q_SLOTS:
    /// The user confirmed a number or turned the knob to it; in resolution steps. Emits
    /// paraChanged(double), or sgnRealParameterIllegal() outside the limits.
    virtual void slt_editingFinished(long long valueLL);
    /// Emits sgn_editorFocusIn() with the object name.
    virtual void slt_editorFocusIn();

public:
    /// Shows a value, or the nearest limit (on the grid of the resolution) for one outside; as
    /// actualSet() does.
    virtual void validate(double value);

protected:
    /// Tells the owner of a legal value that the user made: emits paraChanged(double).
    virtual void reportChange();

    ParameterTextWithOrderOfMagnitude* m_pParamTextEdit; ///< the digits with their prefix
    double m_dbResolution;                               ///< step of the grid
    double m_dbValue;                                    ///< the value held
    double m_dbMaxValue;                                 ///< the larger limit
    double m_dbMinValue;                                 ///< the smaller limit

    static const QString m_strSelfStyleSheet; ///< look of the row

private:
    void silently(const std::function<void()>& show);

    bool m_bSilent = false;
};

/// A real component with whole numbers.
class APPPLUGINS_EXPORT IntegerCombComponent : public RealCombComponent
{
    Q_OBJECT

public:
    /// Arguments as for RealCombComponent; @p resolution is 1 or another power of ten.
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
    /// Arguments as for RealCombComponent.
    TabelRealCombComponent(QWidget* parent, const char* titleStrId, bool titleCheckable,
                           const char* unitStrId, ENUM_UNIT_TYPE unitType, double defaultValue,
                           double absoluteMax, double absoluteMin, double resolution);

    /// As for RealCombComponent; title and unit then give their width to the input.
    void setCombComponentsHorLayout(int title, int input, int unit, int spacing) override;

protected:
    /// Watches the keys of the digits for the knob; takes none away.
    bool eventFilter(QObject* watched, QEvent* event) override;
    /// Emits paraChanged(double) unless the knob is being turned.
    void reportChange() override;

private:
    bool m_bKnobRotating = false;
};

} // namespace appPlugins
