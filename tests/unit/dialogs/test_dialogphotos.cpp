// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "dialogsession.h"
#include "keyboarddriver.h"

#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QScrollBar>
#include <QtPlugin>

Q_IMPORT_PLUGIN(KvxKeyboardPlugin)

namespace {

const int SurfaceGrey = 0x70;

/// Opens a dialog, which is photographed when it is as it should be.
struct Scene
{
    const char* name;
    std::function<void(DialogSession&, const std::function<void()>&)> play;
};

QString longText()
{
    QString text;
    for (int i = 1; i <= 40; ++i)
        text += QStringLiteral("Line %1: the value lies outside the limits of the instrument.\n")
                    .arg(i);
    return text;
}

void openAt(DialogSession& session, const QStringList& filters, const std::function<void()>& inside)
{
    QString path;
    session.answer(inside);
    HostDialogs::openFile(&session.surface, filters, path, session.root(), "STR_ID_STAT_LOAD", 17);
}

void saveAt(DialogSession& session, const std::function<void()>& inside)
{
    QString path;
    session.answer(inside);
    HostDialogs::saveFile(&session.surface, {QStringLiteral(".json"), QStringLiteral(".mpwv")},
                          path, session.root(), "STR_ID_SAVE", 17, QStringLiteral("double_pulse"));
}

const QVector<Scene>& scenes()
{
    static const QVector<Scene> all = {
        {"warning",
         [](DialogSession& session, const std::function<void()>& photo) {
             session.answer(photo);
             HostDialogs::warning(qtTrId("DBERR_STR_ID_ILLEGALFILEFORMAT"));
         }},
        {"question",
         [](DialogSession& session, const std::function<void()>& photo) {
             session.answer(photo);
             HostDialogs::question(qtTrId("STR_ID_SUREQ_DEFAULT"));
         }},
        {"critical",
         [](DialogSession& session, const std::function<void()>& photo) {
             session.answer(photo);
             HostDialogs::critical(qtTrId("HOSTID_DLG_FOLDER_READ_ONLY"));
         }},
        {"long",
         [](DialogSession& session, const std::function<void()>& photo) {
             session.answer(photo);
             HostDialogs::information(longText());
         }},
        {"open",
         [](DialogSession& session, const std::function<void()>& photo) {
             openAt(session, {QStringLiteral(".json")}, [&photo] {
                 FrontPanel::knob(-3);
                 photo();
             });
         }},
        {"open-types",
         [](DialogSession& session, const std::function<void()>& photo) {
             openAt(session, {QStringLiteral(".json"), QStringLiteral(".mpwv")}, photo);
         }},
        {"empty",
         [](DialogSession& session, const std::function<void()>& photo) {
             openAt(session, {QStringLiteral(".json")}, [&photo] {
                 DialogSession::tapRow(QStringLiteral("measurements"));
                 DialogSession::tapRow(QStringLiteral("half bridge"));
                 photo();
             });
         }},
        {"deep",
         [](DialogSession& session, const std::function<void()>& photo) {
             openAt(session, {QStringLiteral(".json")}, [&photo] {
                 DialogSession::tapRow(QStringLiteral("archive"));
                 DialogSession::tapRow(QStringLiteral("year 2025 half bridge with sic"));
                 DialogSession::tapRow(QStringLiteral("turn-on losses"));
                 DialogSession::tapRow(QStringLiteral("175 degrees"));
                 photo();
             });
         }},
        {"symbols",
         [](DialogSession& session, const std::function<void()>& photo) {
             saveAt(session, [&photo] {
                 FrontPanel::tap(DialogSession::part<QLineEdit>("name"));
                 KeyboardDriver::touch({QStringLiteral("#+=")});
                 photo();
             });
         }},
        {"save", [](DialogSession& session,
                    const std::function<void()>& photo) { saveAt(session, photo); }},
        {"save-keyboard",
         [](DialogSession& session, const std::function<void()>& photo) {
             saveAt(session, [&photo] {
                 FrontPanel::tap(DialogSession::part<QLineEdit>("name"));
                 photo();
             });
         }},
        {"new-folder",
         [](DialogSession& session, const std::function<void()>& photo) {
             saveAt(session, [&session, &photo] {
                 session.answer([&photo] {
                     FrontPanel::tap(DialogSession::part<QLineEdit>("name"));
                     photo();
                 });
                 FrontPanel::tap(DialogSession::button("new folder"));
             });
         }},
        {"replace",
         [](DialogSession& session, const std::function<void()>& photo) {
             saveAt(session, [&session, &photo] {
                 DialogSession::tapRow(QStringLiteral("igbt_600V.json"));
                 session.answer(photo);
                 FrontPanel::tap(DialogSession::button("accept"));
             });
         }},
    };
    return all;
}

void fillFolder(const DialogSession& session)
{
    session.clear();
    for (const char* name :
         {"igbt_600V.json", "sic_mosfet_1200V_gate_test.json", "Doppelpuls Übung.json",
          "ダブルパルス.json", "双脉冲测试.json", "igbt_600V.mpwv",
          "a_very_long_name_of_a_setup_that_somebody_has_given_to_a_file_for_no_reason.json",
          "line\nbreak.json", "\u05e9\u05dc\u05d5\u05dd.json"})
        DialogSession::write(session.root() + QLatin1Char('/') + QString::fromUtf8(name),
                             QByteArray(1834, ' '));
    QDir(session.root()).mkpath(QStringLiteral("measurements/half bridge"));
    QDir(session.root())
        .mkpath(
            QStringLiteral("archive/year 2025 half bridge with sic/turn-on losses/175 degrees"));
}

QStringList cutTexts(const QWidget* window)
{
    QStringList cut;
    for (const auto* button : window->findChildren<QAbstractButton*>()) {
        // Without a name: a folder of the user's, which is as long as it is.
        if (button->isVisible() && !button->objectName().isEmpty() &&
            button->fontMetrics().horizontalAdvance(button->text()) > button->width() - 4)
            cut.append(button->text());
    }
    return cut;
}

QString photoPath(const QString& scene, const QString& language)
{
    const QString folder = qEnvironmentVariable("MPB_PICTURES_DIR");
    QDir().mkpath(folder);
    return folder + QLatin1Char('/') + scene + QLatin1Char('-') + language + QLatin1String(".png");
}

} // namespace

class TestDialogPhotos : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        session.surface.setAutoFillBackground(true);
        QPalette dark;
        dark.setColor(QPalette::Window, QColor(SurfaceGrey, SurfaceGrey, SurfaceGrey));
        session.surface.setPalette(dark);
        fillFolder(session);
    }

    void fits_data()
    {
        QTest::addColumn<int>("scene");
        QTest::addColumn<QString>("language");
        for (const QString& language : Language::all()) {
            for (int i = 0; i < scenes().size(); ++i)
                QTest::addRow("%s %s", scenes().at(i).name, qPrintable(language)) << i << language;
        }
    }

    // Whatever the language: no button's text is cut, no button is smaller than a finger, and
    // everything is on the screen.
    void fits()
    {
        QFETCH(int, scene);
        QFETCH(QString, language);
        const Language catalogues(language);
        bool looked = false;
        scenes().at(scene).play(session, [&] {
            looked = true;
            FrontPanel::settle();
            const QPixmap screen = QGuiApplication::primaryScreen()->grabWindow(0);
            QCOMPARE(screen.size(), QSize(800, 480));
            const QColor behind = screen.toImage().pixelColor(2, 2);
            QVERIFY(behind.red() > 0 && behind.red() < SurfaceGrey / 2);
            QVERIFY(screen.save(photoPath(QLatin1String(scenes().at(scene).name), language)));
            const QDialog* dialog = DialogSession::dialog();
            QCOMPARE(cutTexts(dialog), QStringList());
            for (const auto* button : dialog->findChildren<QAbstractButton*>()) {
                if (!button->isVisible())
                    continue;
                QVERIFY2(button->width() >= 44 && button->height() >= 44,
                         qPrintable(button->objectName()));
                QVERIFY(QRect(0, 0, 800, 480)
                            .contains(QRect(button->mapToGlobal(QPoint()), button->size())));
            }
        });
        QVERIFY(looked);
    }

private:
    DialogSession session;
};

QTEST_MAIN(TestDialogPhotos)

#include "test_dialogphotos.moc"
