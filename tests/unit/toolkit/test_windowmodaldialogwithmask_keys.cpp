// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "windowmodaldialogwithmask.h"

#include "logcapture.h"
#include "pluginwindow.h"

#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>

namespace {

QStringList withText(const char* text)
{
    return LogCapture::messages().filter(QLatin1String(text));
}

bool answer(QWidget& widget, QEvent::Type type, int key)
{
    QKeyEvent event(type, key, Qt::NoModifier);
    return QCoreApplication::sendEvent(&widget, &event);
}

} // namespace

class TestWindowModalDialogWithMaskKeys : public QObject
{
    Q_OBJECT

private slots:
    void keyOfTheFrontPanel_data();
    void keyOfTheFrontPanel();
    void answersKeys_data();
    void answersKeys();
    void pressMeansNothing_data();
    void pressMeansNothing();
    void releaseIsLogged_data();
    void releaseIsLogged();
};

void TestWindowModalDialogWithMaskKeys::keyOfTheFrontPanel_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("closes");

    const auto row = [](const char* name, int key, bool closes) {
        QTest::newRow(name) << key << closes;
    };
    row("Home", 735, true);
    row("Back", 736, true);
    row("Default", 729, true);
    row("Utility", 730, true);
    row("Help", 738, true);
    row("Cancel", Qt::Key_Cancel, true);
    row("Manual", 731, false);
    row("channel 1", 725, false);
    row("knob", 732, false);
    row("minus", 737, false);
    row("nano", 705, false);
    row("base unit", 734, false);
    row("digit", Qt::Key_5, false);
    row("Return", Qt::Key_Return, false);
    row("Enter", Qt::Key_Enter, false);
    row("Escape", Qt::Key_Escape, false);
    row("blank", Qt::Key_Space, false);
    row("Up", Qt::Key_Up, false);
}

// The key arrives where the focus is: at the content, which has no use for it.
void TestWindowModalDialogWithMaskKeys::keyOfTheFrontPanel()
{
    QFETCH(int, key);
    QFETCH(bool, closes);

    const LogCapture log;
    HostWindow host;
    QVERIFY(host.start());
    PluginWindow window(&host);
    QSignalSpy finished(&window, &QDialog::finished);
    QSignalSpy rejected(&window, &QDialog::rejected);
    const int result = window.run([&] {
        QCOMPARE(FrontPanel::receiver(), window.content());
        FrontPanel::post(QEvent::KeyPress, key);
        FrontPanel::settle();
        QVERIFY(window.isVisible());
        QVERIFY(!window.getFinished());

        FrontPanel::post(QEvent::KeyRelease, key);
        FrontPanel::settle();
        QCOMPARE(window.isVisible(), !closes);
        QCOMPARE(window.getFinished(), closes);
        if (!closes)
            window.accept();
    });
    QCOMPARE(result, int(closes ? QDialog::Rejected : QDialog::Accepted));
    QCOMPARE(finished.count(), 1);
    QCOMPARE(rejected.count(), closes ? 1 : 0);
    QVERIFY(host.pressed.isEmpty());
    QVERIFY(host.released.isEmpty());
}

void TestWindowModalDialogWithMaskKeys::answersKeys_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("released");
    for (const int key : {729, 730, 731, 735, 736, 738, int(Qt::Key_Cancel)})
        QTest::addRow("%d", key) << key << false;
    for (const int key : {705, 709, 713, 725, 732, 734, 737, int(Qt::Key_A), int(Qt::Key_Escape),
                          int(Qt::Key_Return), int(Qt::Key_Tab)})
        QTest::addRow("%d", key) << key << true;
}

void TestWindowModalDialogWithMaskKeys::answersKeys()
{
    QFETCH(int, key);

    const LogCapture log;
    PluginWindow window(nullptr);
    QVERIFY(answer(window, QEvent::KeyPress, key));
    QTEST(answer(window, QEvent::KeyRelease, key), "released");
}

void TestWindowModalDialogWithMaskKeys::pressMeansNothing_data()
{
    QTest::addColumn<int>("key");
    // What a press of them means in other dialogs: reject, click the default button, next input.
    QTest::newRow("Escape") << int(Qt::Key_Escape);
    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("Enter") << int(Qt::Key_Enter);
    QTest::newRow("Tab") << int(Qt::Key_Tab);
    QTest::newRow("Backtab") << int(Qt::Key_Backtab);
    QTest::newRow("Home") << int(QT_KEY_HOME);
}

void TestWindowModalDialogWithMaskKeys::pressMeansNothing()
{
    QFETCH(int, key);

    const LogCapture log;
    PluginWindow window(nullptr);
    window.setGeometry(0, 0, 300, 200);
    auto* button = new QPushButton(window.content());
    button->setDefault(true);
    auto* input = new QLineEdit(window.content());
    input->move(0, 100);
    QSignalSpy clicked(button, &QPushButton::clicked);
    bool checked = false;
    window.run([&] {
        input->setFocus();
        QVERIFY(input->hasFocus());
        QVERIFY(answer(window, QEvent::KeyPress, key));
        FrontPanel::settle();
        QVERIFY(window.isVisible());
        QVERIFY(input->hasFocus());
        checked = true;
    });
    QVERIFY(checked);
    QCOMPARE(clicked.count(), 0);
}

void TestWindowModalDialogWithMaskKeys::releaseIsLogged_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QStringList>("levels");
    const QStringList known{QStringLiteral("info")};
    const QStringList unknown{QStringLiteral("info"), QStringLiteral("debug")};
    QTest::newRow("Home") << int(QT_KEY_HOME) << known;
    QTest::newRow("Cancel") << int(Qt::Key_Cancel) << known;
    QTest::newRow("Manual") << int(QT_KEY_MANUAL) << known;
    QTest::newRow("digit") << int(Qt::Key_7) << unknown;
    QTest::newRow("channel 1") << int(QT_KEY_CH1ON) << unknown;
}

void TestWindowModalDialogWithMaskKeys::releaseIsLogged()
{
    QFETCH(int, key);
    QFETCH(QStringList, levels);

    const LogCapture log;
    PluginWindow window(nullptr);
    answer(window, QEvent::KeyPress, key);
    QVERIFY(LogCapture::messages().isEmpty());

    answer(window, QEvent::KeyRelease, key);
    const QStringList lines = withText("WindowModalDialogWithMask::event");
    QCOMPARE(lines.size(), levels.size());
    QVERIFY(lines.first().startsWith(
        QLatin1String("info: WindowModalDialogWithMask::event QKeyEvent(KeyRelease")));
    if (lines.size() == 2) {
        QVERIFY(lines.last().startsWith(QLatin1String(
            "debug: WindowModalDialogWithMask::event keyRelease QKeyEvent(KeyRelease")));
    }
}

QTEST_MAIN(TestWindowModalDialogWithMaskKeys)

#include "test_windowmodaldialogwithmask_keys.moc"
