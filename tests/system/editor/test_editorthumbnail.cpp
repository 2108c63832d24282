// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "editorsession.h"

#include "cplugincombcomponent.h"

#include <QLabel>
#include <QPixmap>

using namespace appPlugins;

namespace {

QImage installed(const QString& fileName)
{
    return QImage(InstalledContent::PictureFolder + fileName)
        .convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

/// Name of the picture that the label shows, found by what it shows; "nothing" for none, "another"
/// for a picture that is not among the installed ones.
QString shown(const EditorHost& host)
{
    const QPixmap pixmap = host.thumbnail()->pixmap(Qt::ReturnByValue);
    if (pixmap.isNull())
        return QStringLiteral("nothing");
    const QImage image = pixmap.toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
    for (const QString& name : QDir(InstalledContent::PictureFolder).entryList(QDir::Files)) {
        if (installed(name) == image)
            return name;
    }
    return QStringLiteral("another");
}

QString prefix(int count)
{
    return count < 3 ? QStringLiteral("d_") : QStringLiteral("m_");
}

void setCount(const EditorHost& host, int count)
{
    host.enter(host.count(), QString::number(count));
    QCOMPARE(host.table()->model()->rowCount(), count);
}

} // namespace

/// Which picture of the train is shown for what is being edited.
class TestEditorThumbnail : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void unmarkedAtStart();
    void focusOfAParameter_data();
    void focusOfAParameter();
    void focusGoesFromOneToAnother();
    void otherInputsMarkNothing();
    void confirmedNumberTakesTheMarkAway();
    void cells_data();
    void cells();
    void markFollowsTheLastRow();
    void nothingSelected();
    void countChanges();
    void focusAfterACell();
    void namesOfOtherEditors_data();
    void namesOfOtherEditors();
    void cellsThatAreNotThere_data();
    void cellsThatAreNotThere();
    void missingFile();
    void pictureIsReadAgainEachTime();
};

void TestEditorThumbnail::init()
{
    QVERIFY(InstalledContent::install());
}

void TestEditorThumbnail::unmarkedAtStart()
{
    EditorSession session;
    QCOMPARE(shown(session.host), QStringLiteral("d_.png"));
    session.exec([&] { QCOMPARE(shown(session.host), QStringLiteral("d_.png")); });
}

void TestEditorThumbnail::focusOfAParameter_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("objectName");
    QTest::addColumn<QString>("picture");
    for (const int count : {2, 3, 30}) {
        const QVector<QPair<const char*, const char*>> pictures = {
            {"HighLevel", "high.png"}, {"LowLevel", "low.png"}, {"TriggerDelay", "delay.png"}};
        for (const auto& picture : pictures) {
            QTest::addRow("%s of %d", picture.first, count)
                << count << QString(QLatin1String(picture.first))
                << prefix(count) + QLatin1String(picture.second);
        }
    }
}

void TestEditorThumbnail::focusOfAParameter()
{
    QFETCH(int, count);
    QFETCH(QString, objectName);
    QFETCH(QString, picture);
    EditorSession session;
    const EditorHost& host = session.host;
    session.exec([&] {
        if (count != 2)
            setCount(host, count);
        const QString unmarked = prefix(count) + QLatin1String(".png");
        QCOMPARE(shown(host), unmarked);
        FrontPanel::tap(host.editor()->findChild<RealCombComponent*>(objectName)->focusProxy());
        QCOMPARE(shown(host), picture);
        FrontPanel::knob(1);
        QCOMPARE(shown(host), picture);
        FrontPanel::type(QStringLiteral("1"));
        QCOMPARE(shown(host), picture);

        FrontPanel::tap(host.count()->focusProxy());
        QCOMPARE(shown(host), unmarked);
    });
}

void TestEditorThumbnail::focusGoesFromOneToAnother()
{
    EditorSession session;
    const EditorHost& host = session.host;
    session.exec([&] {
        FrontPanel::tap(host.highLevel()->focusProxy());
        FrontPanel::tap(host.lowLevel()->focusProxy());
        QCOMPARE(shown(host), QStringLiteral("d_low.png"));
        FrontPanel::tap(host.delay()->focusProxy());
        QCOMPARE(shown(host), QStringLiteral("d_delay.png"));
        FrontPanel::tap(host.highLevel()->focusProxy());
        QCOMPARE(shown(host), QStringLiteral("d_high.png"));
    });
}

void TestEditorThumbnail::otherInputsMarkNothing()
{
    EditorSession session;
    const EditorHost& host = session.host;
    session.exec([&] {
        FrontPanel::tap(host.count()->focusProxy());
        QCOMPARE(shown(host), QStringLiteral("d_.png"));
        host.choose(host.source(), 2);
        QCOMPARE(shown(host), QStringLiteral("d_.png"));
        FrontPanel::tap(host.timer()->focusProxy());
        QCOMPARE(shown(host), QStringLiteral("d_.png"));
        host.choose(host.load(), 1);
        QCOMPARE(shown(host), QStringLiteral("d_.png"));

        FrontPanel::tap(host.delay()->focusProxy());
        host.choose(host.load(), 0);
        QCOMPARE(shown(host), QStringLiteral("d_.png"));
    });
}

void TestEditorThumbnail::confirmedNumberTakesTheMarkAway()
{
    EditorSession session;
    const EditorHost& host = session.host;
    session.exec([&] {
        host.enter(host.highLevel(), QStringLiteral("2"));
        QCOMPARE(host.highLevel()->get(), 2.0);
        QCOMPARE(shown(host), QStringLiteral("d_.png"));
    });
}

void TestEditorThumbnail::cells_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("picture");
    const auto add = [](int count, int row, const char* width, const char* gap) {
        QTest::addRow("width %d of %d", row, count)
            << count << row << 0 << QString(QLatin1String(width));
        QTest::addRow("gap %d of %d", row, count)
            << count << row << 1 << QString(QLatin1String(gap));
    };
    add(2, 0, "d_w1.png", "d_g1.png");
    add(2, 1, "d_w2.png", "d_g2.png");
    add(3, 0, "m_w1.png", "m_g1.png");
    add(3, 1, "m_w2.png", "m_.png");
    add(3, 2, "m_wN.png", "m_gN.png");
    add(5, 0, "m_w1.png", "m_g1.png");
    add(5, 1, "m_w2.png", "m_.png");
    add(5, 2, "m_.png", "m_.png");
    add(5, 3, "m_.png", "m_.png");
    add(5, 4, "m_wN.png", "m_gN.png");
    add(30, 28, "m_.png", "m_.png");
    add(30, 29, "m_wN.png", "m_gN.png");
}

void TestEditorThumbnail::cells()
{
    QFETCH(int, count);
    QFETCH(int, row);
    QFETCH(int, column);
    QFETCH(QString, picture);
    EditorSession session;
    const EditorHost& host = session.host;
    session.exec([&] {
        if (count != 2)
            setCount(host, count);
        host.tapCell(row, column);
        QVERIFY(
            host.table()->selectionModel()->isSelected(host.table()->model()->index(row, column)));
        QCOMPARE(shown(host), picture);
    });
}

void TestEditorThumbnail::markFollowsTheLastRow()
{
    EditorSession session;
    const EditorHost& host = session.host;
    session.exec([&] {
        setCount(host, 3);
        host.tapCell(2, 0);
        QCOMPARE(shown(host), QStringLiteral("m_wN.png"));
        setCount(host, 4);
        host.tapCell(2, 0);
        QCOMPARE(shown(host), QStringLiteral("m_.png"));
        host.tapCell(3, 1);
        QCOMPARE(shown(host), QStringLiteral("m_gN.png"));
        setCount(host, 2);
        host.tapCell(1, 1);
        QCOMPARE(shown(host), QStringLiteral("d_g2.png"));
    });
}

void TestEditorThumbnail::nothingSelected()
{
    EditorSession session;
    const EditorHost& host = session.host;
    session.exec([&] {
        host.tapCell(0, 0);
        QCOMPARE(shown(host), QStringLiteral("d_w1.png"));
        const QWidget* viewport = host.table()->viewport();
        const QPoint below(viewport->width() / 2, viewport->height() - 5);
        QVERIFY(!host.table()->indexAt(below).isValid());
        FrontPanel::tap(host.table()->viewport(), below);
        QVERIFY(!host.table()->selectionModel()->hasSelection());
        QCOMPARE(shown(host), QStringLiteral("d_.png"));
    });
}

void TestEditorThumbnail::countChanges()
{
    EditorSession session;
    const EditorHost& host = session.host;
    session.exec([&] {
        const QVector<QPair<int, const char*>> steps = {
            {3, "m_.png"}, {2, "d_.png"}, {30, "m_.png"}, {5, "m_.png"}, {2, "d_.png"}};
        for (const auto& step : steps) {
            host.tapCell(0, 0);
            QVERIFY(shown(host).endsWith(QLatin1String("_w1.png")));
            setCount(host, step.first);
            QCOMPARE(shown(host), QString(QLatin1String(step.second)));
        }

        FrontPanel::tap(host.count()->focusProxy());
        FrontPanel::knob(1);
        QCOMPARE(shown(host), QStringLiteral("m_.png"));
        FrontPanel::knob(-1);
        QCOMPARE(shown(host), QStringLiteral("d_.png"));
    });
    const QString line =
        QStringLiteral("info: MultiPulseEditor::slt_pulseNumsParamChanged fileName= \"%1%2\"");
    QVERIFY(LogCapture::messages().contains(
        line.arg(InstalledContent::PictureFolder, QStringLiteral("m_.png"))));
    QVERIFY(LogCapture::messages().contains(
        line.arg(InstalledContent::PictureFolder, QStringLiteral("d_.png"))));
}

void TestEditorThumbnail::focusAfterACell()
{
    EditorSession session;
    const EditorHost& host = session.host;
    session.exec([&] {
        host.tapCell(1, 0);
        QCOMPARE(shown(host), QStringLiteral("d_w2.png"));
        FrontPanel::tap(host.lowLevel()->focusProxy());
        QCOMPARE(shown(host), QStringLiteral("d_low.png"));
        host.tapCell(0, 1);
        QCOMPARE(shown(host), QStringLiteral("d_g1.png"));
    });
}

void TestEditorThumbnail::namesOfOtherEditors_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("picture");
    const QVector<QPair<const char*, const char*>> pictures = {{"Amplitude", "ampl.png"},
                                                               {"Offset", "offset.png"},
                                                               {"HighLevel", "high.png"},
                                                               {"highlevel", ".png"},
                                                               {"HighLevel ", ".png"},
                                                               {"TriggerTimer", ".png"},
                                                               {"", ".png"}};
    for (const auto& picture : pictures) {
        QTest::addRow("\"%s\"", picture.first)
            << QString(QLatin1String(picture.first)) << QString(QLatin1String(picture.second));
    }
}

// Components of these names belong to no row of this window: what they would send is sent here.
void TestEditorThumbnail::namesOfOtherEditors()
{
    QFETCH(QString, name);
    QFETCH(QString, picture);
    EditorSession session;
    const EditorHost& host = session.host;
    session.exec([&] {
        for (const int count : {2, 3}) {
            setCount(host, count);
            QVERIFY(QMetaObject::invokeMethod(host.editor(), "slt_UpdateThumbnailImage",
                                              Q_ARG(QString, name)));
            QCOMPARE(shown(host), prefix(count) + picture);
        }
    });
}

void TestEditorThumbnail::cellsThatAreNotThere_data()
{
    QTest::addColumn<QPoint>("cell");
    QTest::newRow("none") << QPoint(-1, -1);
    QTest::newRow("third column") << QPoint(0, 2);
    QTest::newRow("behind the last row") << QPoint(3, 0);
    QTest::newRow("no column") << QPoint(1, -1);
}

void TestEditorThumbnail::cellsThatAreNotThere()
{
    QFETCH(QPoint, cell);
    EditorSession session;
    const EditorHost& host = session.host;
    session.exec([&] {
        for (const int count : {2, 3}) {
            setCount(host, count);
            host.tapCell(0, 0);
            QVERIFY(QMetaObject::invokeMethod(host.editor(), "slt_UpdateThumbnailImage",
                                              Q_ARG(QPoint, cell)));
            QCOMPARE(shown(host), prefix(count) + QLatin1String(".png"));
        }
    });
}

void TestEditorThumbnail::missingFile()
{
    EditorSession session;
    const EditorHost& host = session.host;
    session.exec([&] {
        QVERIFY(QFile::remove(InstalledContent::PictureFolder + QLatin1String("d_high.png")));
        FrontPanel::tap(host.highLevel()->focusProxy());
        QCOMPARE(shown(host), QStringLiteral("nothing"));
        QCOMPARE(host.thumbnail()->text(), QString());
        FrontPanel::tap(host.lowLevel()->focusProxy());
        QCOMPARE(shown(host), QStringLiteral("d_low.png"));
    });
    const HostRecord& record = EditorHost::record();
    QVERIFY(record.warnings.isEmpty() && record.criticals.isEmpty());
    QVERIFY(record.informations.isEmpty() && record.questions.isEmpty());
}

void TestEditorThumbnail::pictureIsReadAgainEachTime()
{
    EditorSession session;
    const EditorHost& host = session.host;
    session.exec([&] {
        FrontPanel::tap(host.highLevel()->focusProxy());
        QCOMPARE(shown(host), QStringLiteral("d_high.png"));
        FrontPanel::tap(host.lowLevel()->focusProxy());

        QImage other(32, 32, QImage::Format_RGB32);
        other.fill(Qt::yellow);
        QVERIFY(other.save(InstalledContent::PictureFolder + QLatin1String("d_high.png")));
        FrontPanel::tap(host.highLevel()->focusProxy());
        QCOMPARE(host.thumbnail()->pixmap(Qt::ReturnByValue).size(), QSize(32, 32));
        QCOMPARE(shown(host), QStringLiteral("d_high.png"));
    });
}

QTEST_MAIN(TestEditorThumbnail)
#include "test_editorthumbnail.moc"
