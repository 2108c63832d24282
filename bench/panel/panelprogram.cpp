// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "panelprogram.h"

#include "common/fontsubstitution.h"
#include "endsignals.h"
#include "panellanguages.h"
#include "panellook.h"
#include "paneloptions.h"
#include "panelwindow.h"

#include <QApplication>
#include <QIcon>
#include <QSettings>
#include <QStyleFactory>
#include <QTextStream>
#include <QTimer>
#include <QToolTip>

#include <memory>

namespace {

const int PictureWidth = 1280;
const int PictureHeight = 860;

void dress()
{
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    substituteTextFont();
    QApplication::setPalette(PanelLook::palette());
    QToolTip::setPalette(PanelLook::palette());
    QApplication::setFont(PanelLook::font(13));
    QIcon icon;
    for (const char* const size : {"32", "64", "256"})
        icon.addFile(QStringLiteral(":/kvx-panel/icon-%1.png").arg(QLatin1String(size)));
    QApplication::setWindowIcon(icon);
}

QString firstLanguage(const PanelOptions& options, const QSettings* settings)
{
    if (!options.language.isEmpty())
        return options.language;
    const QString kept =
        settings == nullptr ? QString() : settings->value(QStringLiteral("language")).toString();
    return PanelLanguages::all().contains(kept) ? kept : PanelLanguages::ofLocale(QLocale().name());
}

/// Keeps a picture of the front, if one is asked for: with the last burst seen, or else as the
/// front is at the end.
class PictureKeeper : public QObject
{
public:
    PictureKeeper(PanelWindow& window, const QString& path)
        : m_window(window)
        , m_strPath(path)
    {
        // The lamp and the host's screen follow the burst by a moment.
        m_timer.setSingleShot(true);
        m_timer.setInterval(FollowMs);
        connect(&window, &PanelWindow::burstShown, &m_timer, qOverload<>(&QTimer::start));
        connect(&m_timer, &QTimer::timeout, this, [this] { m_picture = m_window.grab(); });
    }

    /// False when the picture cannot be written.
    bool save()
    {
        if (m_strPath.isEmpty())
            return true;
        return (m_picture.isNull() ? m_window.grab() : m_picture).save(m_strPath, "PNG");
    }

private:
    static const int FollowMs = 200;

    PanelWindow& m_window;
    QString m_strPath;
    QTimer m_timer;
    QPixmap m_picture;
};

int refuse(QTextStream& err, const QString& reason)
{
    err << "kvx-panel: " << reason << '\n';
    err.flush();
    return PanelUsage;
}

} // namespace

int runPanel(const PanelOptions& options, QTextStream& out, QTextStream& err)
{
    dress();
    const QString folder =
        options.translations.isEmpty()
            ? PanelLanguages::defaultFolder(QCoreApplication::applicationDirPath())
            : options.translations;
    std::unique_ptr<QSettings> settings;
    if (options.keepsSettings)
        settings = std::make_unique<QSettings>(QSettings::IniFormat, QSettings::UserScope,
                                               QStringLiteral("multi-pulse-builder"),
                                               QStringLiteral("kvx-panel"));
    PanelLanguages languages(folder);
    if (!languages.install(firstLanguage(options, settings.get())))
        return refuse(err, QStringLiteral("there are no texts in %1").arg(folder));
    PanelWindow window(options, languages, settings.get());
    QObject::connect(&window, &PanelWindow::screenShown, &window, [&out] {
        out << "ready\n";
        out.flush();
    });
    const EndSignals endSignals;
    QObject::connect(&endSignals, &EndSignals::endRequested, &window, &QWidget::close);
    QObject::connect(&endSignals, &EndSignals::endRequested, qApp, &QCoreApplication::quit);
    window.start();
    // A picture is to be the same whatever the size of the desktop.
    if (!options.picture.isEmpty())
        window.resize(PictureWidth, PictureHeight);
    PictureKeeper keeper(window, options.picture);
    window.show();
    const int code = QApplication::exec();
    if (!keeper.save())
        return refuse(err, QStringLiteral("--picture %1: cannot be written").arg(options.picture));
    return code;
}
