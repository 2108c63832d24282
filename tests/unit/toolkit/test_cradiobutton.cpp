// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "cradiobutton.h"

#include "testtranslator.h"
#include "toolkitform.h"

#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>

using appPlugins::CRadioButton;

namespace {

struct Pair
{
    Pair()
        : pair(form.add(new CRadioButton(&form, "ONE", "TWO")))
        , left(pair->findChild<QPushButton*>(QStringLiteral("left")))
        , right(pair->findChild<QPushButton*>(QStringLiteral("right")))
        , clicked(pair, &CRadioButton::sgnButtonClicked)
    {
        form.start();
    }

    ToolkitForm form;
    CRadioButton* pair;
    QPushButton* left;
    QPushButton* right;
    QSignalSpy clicked;
};

} // namespace

class TestCRadioButton : public QObject
{
    Q_OBJECT

private slots:
    void showsTwoTexts();
    void tapChecksOne();
    void programChecksSilently();
    void indexThatNoButtonHas_data();
    void indexThatNoButtonHas();
    void slidingOffClicksNothing();
    void disabledClicksNothing();
    void tapGivesFocusToPair();
    void followsLanguage();
    void textsAreReplaced();
};

void TestCRadioButton::showsTwoTexts()
{
    const Pair radio;
    QCOMPARE(radio.left->text(), QStringLiteral("ONE"));
    QCOMPARE(radio.right->text(), QStringLiteral("TWO"));
    QVERIFY(radio.left->isCheckable());
    QVERIFY(radio.right->isCheckable());
    QCOMPARE(radio.pair->checkedIndex(), -1);
    QVERIFY(radio.left->x() < radio.right->x());
    QCOMPARE(
        radio.pair->styleSheet(),
        QStringLiteral(
            "QLabel{background:transparent;border:none;}"
            "QLabel:hover{border-image:url(/mnt/user-data/.app/appPluginsPics/"
            "glow.png);border:none;}"
            "QLabel:focus{border-image:url(/mnt/user-data/.app/appPluginsPics/"
            "glow.png);border:none;}"
            "QPushButton[objectName=\"left\"]{border-top-left-radius:4px;border-top-right-radius:"
            "0px; border-bottom-right-radius:0px; border-bottom-left-radius:4px;border: 2px solid "
            "rgb(255,255,255);color:rgb(255,255,255);text-align :center;}"
            "QPushButton[objectName=\"left\"]::checked{background-color:rgb(52,120,247);color:rgb("
            "255,255,255);text-align :center; }"
            "QPushButton[objectName=\"right\"]{border-top-left-radius:0px; "
            "border-top-right-radius:4px;border-bottom-right-radius:4px; "
            "border-bottom-left-radius:0px;border-width: 2px 2px 2px 0px; border-style:solid; "
            "border-color:rgb(255,255,255);color:rgb(255,255,255);text-align :center;}"
            "QPushButton[objectName=\"right\"]::checked{background-color:rgb(52,120,247);color:rgb("
            "255,255,255);text-align :center;}"
            "QPushButton[objectName=\"left\"]:focus{outline:none;}"
            "QPushButton[objectName=\"right\"]:focus{outline:none;}"));
}

void TestCRadioButton::tapChecksOne()
{
    Pair radio;
    FrontPanel::tap(radio.right);
    QCOMPARE(radio.pair->checkedIndex(), 1);
    QVERIFY(!radio.left->isChecked());
    FrontPanel::tap(radio.left);
    QCOMPARE(radio.pair->checkedIndex(), 0);
    QVERIFY(!radio.right->isChecked());
    FrontPanel::tap(radio.left);
    QVERIFY(radio.left->isChecked());
    QCOMPARE(radio.clicked.count(), 3);
    QCOMPARE(radio.clicked.at(0).first().toInt(), 1);
    QCOMPARE(radio.clicked.at(1).first().toInt(), 0);
    QCOMPARE(radio.clicked.at(2).first().toInt(), 0);
}

void TestCRadioButton::programChecksSilently()
{
    Pair radio;
    radio.pair->setChecked(1, true);
    QCOMPARE(radio.pair->checkedIndex(), 1);
    radio.pair->setChecked(0, true);
    QCOMPARE(radio.pair->checkedIndex(), 0);
    QCOMPARE(radio.clicked.count(), 0);
}

void TestCRadioButton::indexThatNoButtonHas_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("2") << 2;
    QTest::newRow("65535") << 65535;
    QTest::newRow("-1") << -1;
}

void TestCRadioButton::indexThatNoButtonHas()
{
    QFETCH(int, index);

    Pair radio;
    radio.pair->setChecked(1, true);
    radio.pair->setChecked(index, true);
    QCOMPARE(radio.pair->checkedIndex(), 1);
}

void TestCRadioButton::slidingOffClicksNothing()
{
    Pair radio;
    radio.pair->setChecked(0, true);
    for (QPushButton* button : {radio.left, radio.right}) {
        const QPoint inside = button->rect().center();
        FrontPanel::drag(button, inside, inside + QPoint(0, 50));
        FrontPanel::drag(button, inside, QPoint(-10, inside.y()));
    }
    FrontPanel::drag(radio.left, radio.left->rect().center(),
                     radio.left->rect().center() + QPoint(radio.left->width(), 0));
    QCOMPARE(radio.clicked.count(), 0);
    QCOMPARE(radio.pair->checkedIndex(), 0);
    QVERIFY(!radio.right->isDown());
    FrontPanel::tap(radio.right);
    QCOMPARE(radio.pair->checkedIndex(), 1);
}

void TestCRadioButton::disabledClicksNothing()
{
    Pair radio;
    radio.pair->setChecked(0, true);
    radio.pair->setDisabled(true);
    QVERIFY(!radio.left->isEnabled());
    QVERIFY(!radio.right->isEnabled());
    FrontPanel::tap(radio.right);
    QCOMPARE(radio.pair->checkedIndex(), 0);
    QCOMPARE(radio.clicked.count(), 0);
    radio.pair->setDisabled(false);
    FrontPanel::tap(radio.right);
    QCOMPARE(radio.pair->checkedIndex(), 1);
}

void TestCRadioButton::tapGivesFocusToPair()
{
    Pair radio;
    FrontPanel::tap(radio.right);
    QVERIFY(radio.pair->hasFocus());
}

void TestCRadioButton::followsLanguage()
{
    const Pair radio;
    const TestTranslator german(QStringLiteral("de:"));
    QCoreApplication::sendPostedEvents();
    QCOMPARE(radio.left->text(), QStringLiteral("de:ONE"));
    QCOMPARE(radio.right->text(), QStringLiteral("de:TWO"));
}

void TestCRadioButton::textsAreReplaced()
{
    const Pair radio;
    radio.pair->setRadioButtonsTextId("YES", "NO");
    QCOMPARE(radio.left->text(), QStringLiteral("YES"));
    QCOMPARE(radio.right->text(), QStringLiteral("NO"));
    const TestTranslator german(QStringLiteral("de:"));
    QCoreApplication::sendPostedEvents();
    QCOMPARE(radio.left->text(), QStringLiteral("de:YES"));
}

QTEST_MAIN(TestCRadioButton)
#include "test_cradiobutton.moc"
