// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "editorsession.h"
#include "wiretap.h"

#include "cstackedcombocomponents.h"

#include <QAction>
#include <QByteArrayList>
#include <QComboBox>
#include <QFile>
#include <QLabel>

namespace Output {

const QString WaveformPath = QStringLiteral("/mnt/user-data/run.mpwv");
const QString RunText = QStringLiteral("STR_UTILITY_RUN");
const QString StopText = QStringLiteral("STR_ID_SWEEP_STOP");
const QString Unlocked = QStringLiteral("info: App run, shared memory unlocked");

/// What the editor sends for the train that it starts with, closing query included.
inline QByteArrayList runCommands()
{
    return {
        "OUTP1 OFF \n",
        "OUTP2 OFF \n",
        "*CLS \n",
        "*RST \n",
        "source1:BURSt  ON \n",
        "source1:function emem \n",
        "function:EFile \"M:/run.mpwv\"\n",
        "function:Shape EFILe \n",
        "source1:burst:ncycles 1 \n",
        "source1:burst:TDELay 0\n",
        "OUTput1:IMPedance 50\n",
        "SOURce1:FREQuency:FIXed 29411.764705999998114\n",
        "TRIGger:SOURce EXTERNAL \n",
        "TRIGger:SLOPE POSitive \n",
        "OUTP1 ON \n",
        "*IDN? \n",
    };
}

inline QByteArrayList stopCommands()
{
    return {"OUTP1 OFF \n", "*RST \n", "*IDN? \n"};
}

inline QByteArray joined(const QByteArrayList& commands)
{
    QByteArray bytes;
    for (const QByteArray& command : commands)
        bytes += command;
    return bytes;
}

inline bool waveformExists()
{
    return QFile::exists(WaveformPath);
}

/// The flags as another program sees them: discard keys, block SCPI.
inline QPair<bool, bool> flagsFromOutside()
{
    QSharedMemory segment(QLatin1String(KVXSharedMemory::Key));
    if (!segment.attach(QSharedMemory::ReadOnly))
        return {false, false};
    const auto* bytes = static_cast<const char*>(segment.constData());
    return {bytes[0] == 1, bytes[1] == 1};
}

const QPair<bool, bool> BothSet = {true, true};
const QPair<bool, bool> NoneSet = {false, false};

/// The controls that the output takes part in, by name, in the order of the window.
inline QVector<QPair<QString, bool>> controls(const EditorHost& host)
{
    const auto isOn = [](const QWidget* widget) { return widget->isEnabled(); };
    const auto isActive = [&host](EditorHost::Action which) {
        return host.action(which)->isEnabled() && host.button(which)->isEnabled();
    };
    const auto* stack = host.editor()->findChild<appPlugins::CStackedComboComponents*>();
    const auto* frame = host.editor()->findChild<QLabel*>(QStringLiteral("multipulse table"));
    return {{QStringLiteral("count"), isOn(host.count())},
            {QStringLiteral("high level"), isOn(host.highLevel())},
            {QStringLiteral("low level"), isOn(host.lowLevel())},
            {QStringLiteral("delay"), isOn(host.delay()->focusProxy())},
            {QStringLiteral("source"), isOn(host.source()->findChild<QComboBox*>())},
            {QStringLiteral("source's parameter"), isOn(stack)},
            {QStringLiteral("load"), isOn(host.load())},
            {QStringLiteral("table"), isOn(frame) && isOn(host.table())},
            {QStringLiteral("Open"), isActive(EditorHost::Open)},
            {QStringLiteral("Close"), isActive(EditorHost::Close)},
            {QStringLiteral("Save as"), isActive(EditorHost::SaveAs)},
            {QStringLiteral("Default"), isActive(EditorHost::Default)},
            {QStringLiteral("Help"), isActive(EditorHost::Help)},
            {QStringLiteral("Run"), isActive(EditorHost::Run)}};
}

inline QStringList disabledControls(const EditorHost& host)
{
    QStringList names;
    for (const auto& control : controls(host)) {
        if (!control.second)
            names.append(control.first);
    }
    return names;
}

/// All that a run takes away.
inline QStringList lockedControls()
{
    return {
        QStringLiteral("count"), QStringLiteral("high level"), QStringLiteral("low level"),
        QStringLiteral("delay"), QStringLiteral("source"),     QStringLiteral("source's parameter"),
        QStringLiteral("load"),  QStringLiteral("table"),      QStringLiteral("Open"),
        QStringLiteral("Close"), QStringLiteral("Save as"),    QStringLiteral("Default")};
}

/// How the output shows in the window.
struct State
{
    bool checked;
    QString text;
    QStringList disabled;

    bool operator==(const State& other) const
    {
        return checked == other.checked && text == other.text && disabled == other.disabled;
    }
};

inline char* toString(const State& state)
{
    const QString told = QStringLiteral("%1, \"%2\", disabled: %3")
                             .arg(state.checked ? QLatin1String("checked") : QLatin1String("not"),
                                  state.text, state.disabled.join(QLatin1String(", ")));
    return qstrdup(qPrintable(told));
}

inline State stateOf(const EditorHost& host)
{
    return {host.action(EditorHost::Run)->isChecked(), host.action(EditorHost::Run)->text(),
            disabledControls(host)};
}

inline State stopped()
{
    return {false, RunText, {}};
}

inline State running()
{
    return {true, StopText, lockedControls()};
}

/// The warnings of the log, but for the one that belongs to every waveform file.
inline QStringList warningsLogged(int first)
{
    QStringList found;
    for (const QString& message : LogCapture::messages().mid(first)) {
        if (message.startsWith(QLatin1String("warning: ")) &&
            !message.startsWith(QLatin1String("warning: headerWrite")))
            found.append(message);
    }
    return found;
}

} // namespace Output

/// The plug-in shown by its host, an instrument that answers its queries, and what it sends.
struct OutputSession : EditorSession
{
    explicit OutputSession(EditorHost::Segment segment = EditorHost::WithSegment)
        : EditorSession({}, "KVX7010C", segment)
    {
        for (const char* query : {"*IDN?\n", "*IDN? \n"})
            server.answer(query, "Maker,KVX7010C,0001,V1.0\n");
        tap.written = [this](int socket, const QByteArray& bytes) {
            sent.append(bytes);
            if (whenSent)
                whenSent(socket, bytes);
        };
    }

    void pressRun() const { FrontPanel::tap(host.button(EditorHost::Run)); }

    /// What has been sent since the last call, a write each.
    QByteArrayList takeSent()
    {
        QByteArrayList taken;
        taken.swap(sent);
        return taken;
    }

    bool flagsAreClear() const { return !host.discardKeys() && !host.blockScpi(); }

    /// The messages of the log that hold @p text, from message number @p first on.
    static QStringList logged(const QString& text, int first = 0)
    {
        return LogCapture::messages().mid(first).filter(text);
    }

    Wiretap tap;
    QByteArrayList sent;
    std::function<void(int socket, const QByteArray& bytes)> whenSent;
};
