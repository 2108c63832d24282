// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "appplugins_export.h"

#include <QLabel>

#include <initializer_list>

namespace appPlugins {

/// The label to the right of the digits of a numeric editor: the engineering prefix in which the
/// value is shown. It holds the power of ten of each prefix of its family and turns the front
/// panel's unit keys into a prefix. The unit's name itself ("V", "s") is shown by the owning
/// component.
///
/// Prefixes are ordered from the largest (index 0) to the smallest. A key press that is no unit key
/// of the family is answered by a Cancel key press to the widget given at construction, which makes
/// the editor discard what was typed. A disabled selector receives no keys.
///
/// A new family calls setPrefixes() in its constructor and selectByKey() in keyPressEvent().
class APPPLUGINS_EXPORT CUnit : public QLabel
{
    Q_OBJECT
    Q_PROPERTY(bool bDisguiseFocus READ getBDisguiseFocus WRITE setBDisguiseFocus)

public:
    /// "k" and the base unit: plain numbers. @p parent gets the Cancel.
    explicit CUnit(QWidget* parent);

    /// Text of the current prefix; empty for the base unit.
    virtual QString getUnitString() const;
    /// Factor of the current prefix relative to the base unit.
    virtual double times() const;
    /// Shows the prefix with this index, 0 to unitCounts() - 1. Emits nothing.
    virtual void setUnitIndex(int index);
    /// Shows the prefix of a value of zero.
    virtual void setToBase();

    /// As tall as it is let: digits and prefix are one field.
    QSize sizeHint() const override;

    /// Index of the prefix on show, 0 at first.
    int unitIndex() const { return m_unitIndex; }
    /// Index of the prefix that shows a value of zero.
    int baseIndex() const { return m_baseIndex; }
    /// Number of prefixes, 1 to 6.
    int unitCounts() const { return m_nUnitCounts; }
    /// Factor of the prefix with this index, 0 to unitCounts() - 1.
    double timesOf(int index) const { return m_unitPower[index]; }

    /// Whether the label draws as focused, so that digits and prefix look like one field while the
    /// digit editor alone has the focus.
    bool getBDisguiseFocus() const { return m_bDisguiseFocus; }
    /// Draws the label as focused or not, at once; it starts as not focused.
    void setBDisguiseFocus(bool disguise);

Q_SIGNALS:
    /// A unit key, Return or the pressed knob confirmed the prefix that is now current.
    void unitSelected();

protected:
    /// One prefix of a family.
    struct Prefix
    {
        const char* label; ///< text on show, in Latin-1; empty for the base unit
        double power;      ///< factor relative to the base unit, greater than 0
    };

    /// Prefix index that each unit key selects; Cancels for a key that the family does not have.
    struct KeyMap
    {
        int gn; ///< QT_KEY_GN: giga or nano
        int mu; ///< QT_KEY_MU: mega or micro
        int km; ///< QT_KEY_KM: kilo or milli
        int x1; ///< QT_KEY_X1: base unit
    };
    static const int Cancels = -1; ///< no prefix: the key cancels what was typed

    /// Replaces the prefixes (1 to 6, the largest first) and shows the first. @p baseIndex is the
    /// one for a value of zero.
    void setPrefixes(std::initializer_list<Prefix> prefixes, int baseIndex);
    /// What a key press means to a family with these keys.
    void selectByKey(QKeyEvent* event, const KeyMap& keys);

    /// QT_KEY_KM and QT_KEY_X1 are the unit keys.
    void keyPressEvent(QKeyEvent* event) override;
    /// Keeps the prefix on the line of the digits.
    void resizeEvent(QResizeEvent* event) override;

private:
    void confirm(int index);
    void cancelEntry();

    static const int MaxUnits = 6;

    int m_unitIndex = 0;
    QString m_unitLabels[MaxUnits];
    double m_unitPower[MaxUnits] = {};
    int m_baseIndex = 0;
    bool m_bDisguiseFocus = true;
    QWidget* m_parent;
    int m_nUnitCounts = 0;

    static const QString m_strSelfStyleSheet;
};

/// Hertz: G, M, k, base, m, u. The last two have no key: they are reached by the automatic choice
/// of the prefix and by the arrow keys.
class APPPLUGINS_EXPORT CFrequencyUnit : public CUnit
{
    Q_OBJECT
public:
    /// @p parent gets the Cancel.
    explicit CFrequencyUnit(QWidget* parent);

protected:
    /// All four unit keys: giga, mega, kilo, base.
    void keyPressEvent(QKeyEvent* event) override;
};

/// Volts: base, m.
class APPPLUGINS_EXPORT CVoltUnit : public CUnit
{
    Q_OBJECT
public:
    /// @p parent gets the Cancel.
    explicit CVoltUnit(QWidget* parent);

protected:
    /// QT_KEY_KM (milli) and QT_KEY_X1 are the unit keys.
    void keyPressEvent(QKeyEvent* event) override;
};

/// Seconds: base, m, u, n.
class APPPLUGINS_EXPORT CTimeUnit : public CUnit
{
    Q_OBJECT
public:
    /// @p parent gets the Cancel.
    explicit CTimeUnit(QWidget* parent);

protected:
    /// All four unit keys: nano, micro, milli, base.
    void keyPressEvent(QKeyEvent* event) override;
};

/// Percent: base alone.
class APPPLUGINS_EXPORT CPercentUnit : public CUnit
{
    Q_OBJECT
public:
    /// @p parent gets the Cancel.
    explicit CPercentUnit(QWidget* parent);

protected:
    /// QT_KEY_X1 is the only unit key.
    void keyPressEvent(QKeyEvent* event) override;
};

/// Samples per second, always shown in giga: its base index is that entry, with the factor 1e9.
class APPPLUGINS_EXPORT CRateUnit : public CUnit
{
    Q_OBJECT
public:
    /// @p parent gets the Cancel.
    explicit CRateUnit(QWidget* parent);

protected:
    /// QT_KEY_GN and QT_KEY_X1 both mean giga.
    void keyPressEvent(QKeyEvent* event) override;
};

/// Degrees: base alone.
class APPPLUGINS_EXPORT CPhaseUnit : public CUnit
{
    Q_OBJECT
public:
    /// @p parent gets the Cancel.
    explicit CPhaseUnit(QWidget* parent);

protected:
    /// QT_KEY_X1 is the only unit key.
    void keyPressEvent(QKeyEvent* event) override;
};

/// Waveform points: M, k, base.
class APPPLUGINS_EXPORT CPointUnit : public CUnit
{
    Q_OBJECT
public:
    /// @p parent gets the Cancel.
    explicit CPointUnit(QWidget* parent);

protected:
    /// QT_KEY_MU (mega), QT_KEY_KM (kilo) and QT_KEY_X1 are the unit keys.
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace appPlugins
