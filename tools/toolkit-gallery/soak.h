// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

#include <random>

class ParameterForm;
class QPoint;
class QRect;

/// A monkey at the front panel: it presses keys and touches a form at random and looks after each
/// event whether the form still tells the truth.
class Soak : public QObject
{
    Q_OBJECT

public:
    /// @p form must be on show. The same seed gives the same events.
    Soak(ParameterForm& form, quint32 seed);

    /// Posts events and stops at the first that breaks a rule. True when none did.
    bool run(int events);

    /// What is wrong after the last event: empty, or which number breaks which rule.
    QString fault() const { return m_strFault; }
    /// The last events before the fault, the newest last.
    QStringList history() const { return m_history; }
    int eventsDone() const { return m_nDone; }
    /// How often a component told of a new value, and how often of one outside its limits: a soak
    /// without them has tried nothing.
    int changes() const { return m_nChanges; }
    int refusals() const { return m_nRefusals; }

private:
    void act();
    void pressKey();
    void touch();
    /// A point of an area that is not empty.
    QPoint pointIn(const QRect& area);
    void note(const QString& event);
    QString check() const;

    ParameterForm& m_form;
    std::mt19937 m_random;
    QStringList m_history;
    QString m_strFault;
    int m_nDone = 0;
    int m_nChanges = 0;
    int m_nRefusals = 0;
};
