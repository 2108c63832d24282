// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "common/fontsubstitution.h"
#include "common/picturedifference.h"
#include "editorhost.h"
#include "logcapture.h"
#include "scriptedserver.h"

#include <QAbstractTextDocumentLayout>
#include <QAction>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QFontDatabase>
#include <QScreen>
#include <QTextBlock>
#include <QTextBrowser>
#include <QToolButton>
#include <QTranslator>

#include <algorithm>

namespace {

/// Brings the editor, which is on the screen, into a state worth a photograph.
using Pose = void (*)(EditorHost&);

struct State
{
    const char* name;
    Pose pose;
    bool inEveryLanguage;
};

void setCount(EditorHost& host, const QString& count)
{
    host.enter(host.count(), count);
}

void tapRun(EditorHost& host)
{
    FrontPanel::tap(host.button(EditorHost::Run));
}

void openCell(EditorHost& host, int row, int column)
{
    host.tapCell(row, column);
    FrontPanel::doubleTap(host.table()->viewport(),
                          host.table()->visualRect(host.table()->currentIndex()).center());
}

// The page is laid out in idle time: its end is asked for, so that the scroll bar is right.
void openHelp(EditorHost& host, const QString& anchor)
{
    FrontPanel::tap(host.button(EditorHost::Help));
    for (const QWidget* window : QApplication::topLevelWidgets()) {
        auto* browser = window->findChild<QTextBrowser*>();
        if (browser == nullptr)
            continue;
        const QTextDocument* page = browser->document();
        page->documentLayout()->blockBoundingRect(page->lastBlock());
        FrontPanel::settle();
        browser->scrollToAnchor(anchor);
    }
}

const State States[] = {
    {"first", [](EditorHost&) {}, true},
    {"focus-count", [](EditorHost& host) { FrontPanel::tap(host.count()->focusProxy()); }, false},
    {"focus-high", [](EditorHost& host) { FrontPanel::tap(host.highLevel()->focusProxy()); },
     false},
    {"focus-low", [](EditorHost& host) { FrontPanel::tap(host.lowLevel()->focusProxy()); }, false},
    {"focus-delay", [](EditorHost& host) { FrontPanel::tap(host.delay()->focusProxy()); }, false},
    {"focus-source", [](EditorHost& host) { host.source()->findChild<QComboBox*>()->setFocus(); },
     false},
    {"list-source",
     [](EditorHost& host) { FrontPanel::tap(host.source()->findChild<QComboBox*>()); }, true},
    {"list-load", [](EditorHost& host) { FrontPanel::tap(host.load()->findChild<QComboBox*>()); },
     false},
    {"focus-timer",
     [](EditorHost& host) {
         host.choose(host.source(), 2);
         FrontPanel::tap(host.timer()->focusProxy());
     },
     false},
    {"cell-selected", [](EditorHost& host) { host.tapCell(1, 0); }, false},
    {"cell-editor", [](EditorHost& host) { openCell(host, 0, 1); }, false},
    {"cell-typing",
     [](EditorHost& host) {
         openCell(host, 0, 1);
         FrontPanel::type(QStringLiteral("3.75"));
     },
     false},
    {"typing",
     [](EditorHost& host) {
         FrontPanel::tap(host.lowLevel()->focusProxy());
         FrontPanel::type(QStringLiteral("-1.5"));
     },
     false},
    {"knob",
     [](EditorHost& host) {
         FrontPanel::tap(host.delay()->focusProxy());
         FrontPanel::press(Qt::Key_Left);
         FrontPanel::press(Qt::Key_Left);
         FrontPanel::knob(3);
     },
     false},
    {"slope",
     [](EditorHost& host) {
         host.choose(host.source(), 1);
         host.choose(host.slope(), 1);
     },
     true},
    {"timer", [](EditorHost& host) { host.choose(host.source(), 2); }, true},
    {"timer-longest",
     [](EditorHost& host) {
         host.choose(host.source(), 2);
         host.enter(host.timer(), QStringLiteral("499.9999999"), QT_KEY_X1);
     },
     false},
    {"five-pulses", [](EditorHost& host) { setCount(host, QStringLiteral("5")); }, false},
    {"thirty-pulses-last",
     [](EditorHost& host) {
         setCount(host, QStringLiteral("30"));
         host.tapCell(29, 1);
     },
     false},
    {"high-impedance",
     [](EditorHost& host) {
         host.choose(host.load(), 1);
         host.enter(host.highLevel(), QStringLiteral("10"));
         host.enter(host.lowLevel(), QStringLiteral("-9.9999"));
     },
     true},
    {"running", [](EditorHost& host) { tapRun(host); }, true},
    {"running-timer",
     [](EditorHost& host) {
         host.choose(host.source(), 2);
         setCount(host, QStringLiteral("7"));
         tapRun(host);
     },
     false},
    {"stopped",
     [](EditorHost& host) {
         tapRun(host);
         tapRun(host);
     },
     false},
    {"help", [](EditorHost& host) { openHelp(host, QStringLiteral("top")); }, true},
    {"help-while-running",
     [](EditorHost& host) {
         tapRun(host);
         openHelp(host, QStringLiteral("window"));
     },
     false},
};

QStringList languages()
{
    return {QStringLiteral("en"), QStringLiteral("de"), QStringLiteral("zh_CN"),
            QStringLiteral("ja")};
}

QString folder(const char* variable)
{
    return QString::fromLocal8Bit(qgetenv(variable));
}

// What an instrument answers to the lines of one showing, of Run and of Stop, in their order: only
// the queries are answered.
QVector<ScriptedServer::Turn> instrumentScript()
{
    const ScriptedServer::Turn silence;
    const ScriptedServer::Turn identity{{"Maker,KVX7030A,0001,1.0\n"}};
    const int runCommands = 15;
    QVector<ScriptedServer::Turn> script{identity, silence};
    script += QVector<ScriptedServer::Turn>(runCommands, silence);
    script += {identity, silence, silence, identity};
    return script;
}

// The colours that are most frequent, and for the others the nearest of them: a smaller file.
QImage withPalette(const QImage& photo)
{
    const QImage picture = photo.convertToFormat(QImage::Format_RGB32);
    QHash<QRgb, int> counts;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            ++counts[picture.pixel(x, y)];
    }
    QVector<QRgb> palette = counts.keys().toVector();
    std::sort(palette.begin(), palette.end(), [&](QRgb a, QRgb b) {
        return counts[a] != counts[b] ? counts[a] > counts[b] : a < b;
    });
    palette.resize(std::min(palette.size(), 256));
    return picture.convertToFormat(QImage::Format_Indexed8, palette);
}

bool copyFolder(const QString& from, const QString& to)
{
    if (!QDir().mkpath(to))
        return false;
    const QFileInfoList entries = QDir(from).entryInfoList(QDir::AllEntries | QDir::NoDotAndDotDot);
    for (const QFileInfo& entry : entries) {
        const QString target = to + QLatin1Char('/') + entry.fileName();
        QFile::remove(target);
        if (entry.isDir() ? !copyFolder(entry.filePath(), target)
                          : !QFile::copy(entry.filePath(), target))
            return false;
    }
    return true;
}

QStringList pictureNames(const QString& path)
{
    return QDir(path).entryList({QStringLiteral("*.png")}, QDir::Files, QDir::Name);
}

} // namespace

/// Compares photographs of the instrument's screen, with the editor in many states, with the
/// approved ones.
class TestEditorPhotos : public QObject
{
    Q_OBJECT

private:
    QString m_approved = folder("MPB_TEST_DATA") + QStringLiteral("/editor");
    QString m_taken = folder("MPB_PICTURES_DIR");

    QString takenFile(const QString& name) const { return m_taken + QLatin1Char('/') + name; }

private Q_SLOTS:
    void initTestCase();
    void isTaken_data();
    void isTaken();
    void everyPhotoIsApproved();
    void looksAsApproved_data();
    void looksAsApproved();
};

void TestEditorPhotos::initTestCase()
{
    // What the style sheets leave open comes from the style, not from the desktop.
    QApplication::setStyle(QStringLiteral("Fusion"));
    // Qt Test asks for a fixed resolution, which hosts do not, and by which pictures are scaled.
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi, false);
    substituteTextFont();
    const QStringList families = QFontDatabase().families();
    for (const char* family : {"Open Sans", "Droid Sans Fallback", "DejaVu Sans"})
        QVERIFY2(families.contains(QLatin1String(family)),
                 qPrintable(QStringLiteral("the font %1 is missing: script/setup installs it")
                                .arg(QLatin1String(family))));
    QVERIFY(copyFolder(folder("MPB_APP_DIR"), QStringLiteral("/mnt/user-data/.app")));
    QDir(m_taken).removeRecursively();
    QVERIFY(QDir().mkpath(m_taken));
}

void TestEditorPhotos::isTaken_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<int>("state");
    for (const QString& language : languages()) {
        for (int i = 0; i < int(std::size(States)); ++i) {
            if (States[i].inEveryLanguage || language == languages().first())
                QTest::addRow("%s-%s", States[i].name, qPrintable(language)) << language << i;
        }
    }
}

void TestEditorPhotos::isTaken()
{
    QFETCH(QString, language);
    QFETCH(int, state);
    QTranslator texts;
    QVERIFY(texts.load(
        QStringLiteral("%1/multipulse_%2.qm").arg(folder("MPB_TRANSLATIONS_DIR"), language)));
    QCoreApplication::installTranslator(&texts);

    const LogCapture log;
    const ScriptedServer instrument(instrumentScript());
    EditorHost host;
    host.show();
    QImage photo;
    host.exec([&] {
        States[state].pose(host);
        FrontPanel::settle();
        photo = QGuiApplication::primaryScreen()->grabWindow(0).toImage();
    });
    QCOMPARE(EditorHost::record().warnings, QStringList());
    QCOMPARE(photo.size(), QSize(800, 480));
    const QString file =
        takenFile(QString::fromLatin1(QTest::currentDataTag()) + QLatin1String(".png"));
    QVERIFY(withPalette(photo).save(file, "PNG", 0));
}

void TestEditorPhotos::everyPhotoIsApproved()
{
    QCOMPARE(pictureNames(m_taken), pictureNames(m_approved));
}

void TestEditorPhotos::looksAsApproved_data()
{
    QTest::addColumn<QString>("name");
    const QStringList names = pictureNames(m_taken);
    for (const QString& name : names)
        QTest::newRow(qPrintable(name)) << name;
}

void TestEditorPhotos::looksAsApproved()
{
    QFETCH(QString, name);
    const QString file = takenFile(name);
    const QImage approved(m_approved + QLatin1Char('/') + name);
    QVERIFY2(!approved.isNull(),
             qPrintable(QStringLiteral("%1 has no approved picture\n  new picture: %2\n"
                                       "If it looks well: script/editor-pictures --approve")
                            .arg(name, file)));
    const PictureDifference difference = differenceOf(approved, QImage(file));
    if (difference.tolerable())
        return;

    const QString differenceFile =
        QString(file).replace(QStringLiteral(".png"), QStringLiteral(".difference"));
    QVERIFY(difference.picture.save(differenceFile, "PNG"));
    const QString report =
        QStringLiteral("%1 differs from the approved picture: mean difference %2, and %3 % of "
                       "the pixels round (%4, %5)\n"
                       "  new picture: %6\n  difference:  %7\n"
                       "If the new look is meant: script/editor-pictures --approve")
            .arg(name)
            .arg(difference.mean, 0, 'f', 2)
            .arg(100 * difference.share, 0, 'f', 1)
            .arg(difference.worst.x())
            .arg(difference.worst.y())
            .arg(file, differenceFile);
    QFAIL(qPrintable(report));
}

QTEST_MAIN(TestEditorPhotos)
#include "test_editorphotos.moc"
