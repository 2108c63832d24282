// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "hostprogram.h"

#include "endsignals.h"
#include "fontsubstitution.h"
#include "host.h"
#include "hostapplication.h"
#include "hostlook.h"
#include "loopbackbind.h"

#include <QStyleFactory>
#include <QTextStream>
#include <QTimer>

#include <cstring>

namespace {

const int LookAgainMs = 5;

// A desktop has them for its own screen. The instrument's is 800 by 480 pixels of its own, and what
// is on it has one look.
const char* const DesktopsLook[] = {
    "QT_SCALE_FACTOR",           "QT_SCREEN_SCALE_FACTORS", "QT_AUTO_SCREEN_SCALE_FACTOR",
    "QT_ENABLE_HIGHDPI_SCALING", "QT_DEVICE_PIXEL_RATIO",   "QT_FONT_DPI",
    "QT_QPA_PLATFORMTHEME",      "QT_STYLE_OVERRIDE"};

bool isOnNetwork()
{
    return QGuiApplication::platformName() == QLatin1String("vnc");
}

void setLook(QApplication& application)
{
    substituteTextFont();
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(HostLook::palette());
    QApplication::setFont(HostLook::font(16));
    // A finger has no arrow.
    QApplication::setOverrideCursor(Qt::BlankCursor);
    application.setQuitOnLastWindowClosed(false);
}

/// Waits for the screen, which the platform opens in the event loop, and tells that all is ready.
class Readiness : public QObject
{
public:
    Readiness(const HostOptions& options, QTextStream& out, QTextStream& err)
        : m_options(options)
        , m_out(out)
        , m_err(err)
    {
        connect(&m_timer, &QTimer::timeout, this, &Readiness::look);
        m_timer.start(LookAgainMs);
    }

private:
    void look()
    {
        const LoopbackBind::Screen screen = LoopbackBind::screen();
        if (isOnNetwork() && screen.state == LoopbackBind::Screen::Failed)
            return fail(screen.error);
        if (isOnNetwork() && screen.state != LoopbackBind::Screen::Listening)
            return;
        m_timer.stop();
        const QString place = isOnNetwork() ? QStringLiteral("127.0.0.1:%1").arg(screen.port)
                                            : QGuiApplication::platformName();
        m_out << "ready: screen " << place << ", keypad " << m_options.keypadPath << '\n';
        m_out.flush();
    }

    void fail(int error)
    {
        m_timer.stop();
        m_err << "kvx-host: port " << m_options.screenPort << ": "
              << QString::fromLocal8Bit(std::strerror(error)) << '\n';
        m_err.flush();
        QCoreApplication::exit(HostNoPort);
    }

    const HostOptions& m_options;
    QTextStream& m_out;
    QTextStream& m_err;
    QTimer m_timer;
};

} // namespace

void preparePlatform(const HostOptions& options)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM",
                "vnc:port=" + QByteArray::number(options.screenPort) + ":size=800x480");
    qputenv("QT_IM_MODULE", "kvxkeyboard");
    for (const char* variable : DesktopsLook)
        qunsetenv(variable);
}

int runHostProgram(HostApplication& application, const HostOptions& options, QTextStream& out,
                   QTextStream& err)
{
    setLook(application);
    const auto report = [&err](const QString& line) {
        err << "kvx-host: " << line << '\n';
        err.flush();
    };
    const EndSignals endSignals;
    Host host(options, report);
    application.setExceptionHandler([&host](const QString& words) { host.reportException(words); });
    const QString error = host.start();
    if (!error.isEmpty()) {
        report(error);
        return HostUsage;
    }
    QObject::connect(&endSignals, &EndSignals::endRequested, &host, [&host] {
        host.end();
        QCoreApplication::quit();
    });
    const Readiness readiness(options, out, err);
    return QCoreApplication::exec();
}
