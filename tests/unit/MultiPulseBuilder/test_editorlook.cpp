// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "editorlook.h"

#include <QtTest>

namespace {

const QRect Screen(0, 0, 800, 480);

} // namespace

class TestEditorLook : public QObject
{
    Q_OBJECT

private slots:
    void titleFont();
    void mainStyleSheet();
    void labelStyleSheet();
    void toolBarStyleSheet_data();
    void toolBarStyleSheet();
    void toolBarArea_data();
    void toolBarArea();
    void iconSize_data();
    void iconSize();
    void areasFitTheScreen();
};

void TestEditorLook::titleFont()
{
    const QFont font = EditorLook::titleFont();
    QCOMPARE(font.family(), QStringLiteral("Frutiger LT Com 55 Roman"));
    QCOMPARE(font.weight(), 63);
    QCOMPARE(font.pixelSize(), 16);
}

void TestEditorLook::mainStyleSheet()
{
    const QString expected = QStringLiteral(
        R"(QLabel[objectName="title"]{color:rgb(255,255,255);padding-left:15px;background-color:#1e1e1e;}
QLabel[objectName="parameterContainer"]{border:2px solid rgb(255,255,255);}
QLabel[objectName="bottom"]{background:#2e2e2e;}
QLabel[objectName="multipulse thumbnail"]{border:none; color:#000000; background-color:transparent;}
QLabel[objectName="multipulse table"]{border:none; background-color:#2e2e2e;}
QToolBar{background-color: #1e1e1e;}
QLabel{background-color:#2e2e2e;}
)");
    QCOMPARE(EditorLook::mainStyleSheet(), expected);
}

void TestEditorLook::labelStyleSheet()
{
    const QString sheet = EditorLook::labelStyleSheet();
    for (const char* colour :
         {"color:rgb(255,255,255);", "color:rgb(146,146,146);", "background:rgb(52,120,247);"})
        QVERIFY2(sheet.contains(QLatin1String(colour)), colour);
    QVERIFY(!sheet.contains(QLatin1Char('%')));
}

void TestEditorLook::toolBarStyleSheet_data()
{
    QTest::addColumn<QSize>("window");
    QTest::addColumn<QString>("spacing");
    QTest::addColumn<QString>("side");
    QTest::addColumn<QString>("fontSize");

    const auto row = [](const char* name, int width, int height, const char* spacing,
                        const char* side, const char* fontSize) {
        QTest::newRow(name) << QSize(width, height) << QString::fromLatin1(spacing)
                            << QString::fromLatin1(side) << QString::fromLatin1(fontSize);
    };
    row("a window that was never shown", 640, 480, "-15.1", "88.0", "15");
    row("the instrument's screen", 800, 480, "7.7", "88.0", "19");
    row("just no spacing", 746, 480, "0.0", "88.0", "17");
    row("a larger screen", 1024, 600, "39.7", "110.0", "24");
    row("a smaller screen", 320, 241, "-60.9", "44.2", "7");
}

void TestEditorLook::toolBarStyleSheet()
{
    QFETCH(QSize, window);
    QFETCH(QString, spacing);
    QFETCH(QString, side);
    QFETCH(QString, fontSize);

    const QString expected =
        QLatin1String("QToolBar{border-radius:1px; background-color:#1E1E1E;spacing:") + spacing +
        QLatin1String("px;}QToolButton{padding-top:4px; padding-bottom:4px; width:") + side +
        QLatin1String("px;height:") + side +
        QLatin1String("px;margin-left:1px; margin-right:1px; border:none;font-size:") + fontSize +
        QLatin1String("px;color:#cabc9f;font-family:\"Noto Sans medium\";}"
                      "QToolButton:pressed{background-color:#3478f7; color:#ffffff;}"
                      "QToolButton:disabled{color:#3f3f3f;}");
    QCOMPARE(EditorLook::toolBarStyleSheet(window.width(), window.height()), expected);
}

void TestEditorLook::toolBarArea_data()
{
    QTest::addColumn<QSize>("window");
    QTest::addColumn<QRect>("area");
    QTest::newRow("a window that was never shown") << QSize(640, 480) << QRect(0, 411, 640, 70);
    QTest::newRow("the instrument's screen") << QSize(800, 480) << QRect(0, 411, 800, 70);
    QTest::newRow("cut off, not rounded") << QSize(1024, 600) << QRect(0, 513, 1024, 87);
    QTest::newRow("a hundred") << QSize(100, 100) << QRect(0, 85, 100, 14);
}

void TestEditorLook::toolBarArea()
{
    QFETCH(QSize, window);
    QTEST(EditorLook::toolBarArea(window.width(), window.height()), "area");
}

void TestEditorLook::iconSize_data()
{
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("side");
    QTest::newRow("70") << 70 << 42;
    QTest::newRow("87") << 87 << 52;
    QTest::newRow("14") << 14 << 8;
}

void TestEditorLook::iconSize()
{
    QFETCH(int, height);
    QTEST(EditorLook::iconSize(QRect(3, 400, 640, height)), "side");
}

void TestEditorLook::areasFitTheScreen()
{
    const QVector<QRect> areas = {EditorLook::TitleArea, EditorLook::ParameterArea,
                                  EditorLook::ThumbnailArea, EditorLook::TableArea,
                                  EditorLook::BottomArea};
    QCOMPARE(QSize(EditorLook::ScreenWidth, EditorLook::ScreenHeight), Screen.size());
    const QRect bar = EditorLook::toolBarArea(Screen.width(), Screen.height());
    for (int i = 0; i < areas.size(); ++i) {
        QVERIFY(Screen.contains(areas.at(i)));
        QVERIFY(!areas.at(i).intersects(bar));
        for (int other = 0; other < i; ++other)
            QVERIFY(!areas.at(i).intersects(areas.at(other)));
    }
}

// A font needs a QGuiApplication.
QTEST_MAIN(TestEditorLook)

#include "test_editorlook.moc"
