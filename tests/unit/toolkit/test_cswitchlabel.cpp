// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "cswitchlabel.h"

#include "testtranslator.h"
#include "toolkitform.h"

#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>

using appPlugins::CSwitchLabel;

namespace {

const char* const TitleId = "TITLE";

struct Title
{
    explicit Title(bool checkable)
        : label(form.add(new CSwitchLabel(TitleId, &form, checkable)))
        , clicked(label, &CSwitchLabel::sgnQLabelClicked)
    {
        form.start();
    }

    QPushButton* button() const { return label->findChild<QPushButton*>(); }
    QLabel* text() const { return label->findChild<QLabel*>(); }

    ToolkitForm form;
    CSwitchLabel* label;
    QSignalSpy clicked;
};

} // namespace

class TestCSwitchLabel : public QObject
{
    Q_OBJECT

private slots:
    void normalTitleIsText();
    void checkableTitleIsButton();
    void tapClicks();
    void slidingOffClicksNothing();
    void slidingBackClicks();
    void disabledClicksNothing();
    void followsLanguage();
    void emptyTitle();
};

void TestCSwitchLabel::normalTitleIsText()
{
    Title title(false);
    QCOMPARE(title.button(), nullptr);
    QCOMPARE(title.text()->text(), QStringLiteral("TITLE"));
    QCOMPARE(title.text()->alignment(), Qt::AlignRight | Qt::AlignVCenter);
    QCOMPARE(title.label->focusPolicy(), Qt::NoFocus);
    QCOMPARE(title.text()->styleSheet(),
             QStringLiteral("QLabel{color:rgb(255,255,255);}QLabel:disabled{color:rgb(146,146,146);"
                            "}"));
    FrontPanel::tap(title.text());
    QCOMPARE(title.clicked.count(), 0);

    title.label->setDisabled(true);
    QVERIFY(!title.text()->isEnabled());
    title.label->setDisabled(false);
    QVERIFY(title.text()->isEnabled());
}

void TestCSwitchLabel::checkableTitleIsButton()
{
    const Title title(true);
    QVERIFY(title.text() == nullptr);
    QCOMPARE(title.button()->text(), QStringLiteral("TITLE"));
    QCOMPARE(title.button()->focusPolicy(), Qt::NoFocus);
    QCOMPARE(title.button()->styleSheet(),
             QStringLiteral("QPushButton{border-image:url(/mnt/user-data/.app/appPluginsPics/"
                            "L_button_n);color:rgb(255,255,255);}"
                            "QPushButton:pressed{border-image:url(/mnt/user-data/.app/"
                            "appPluginsPics/L_button_d);color:rgb(255,255,255);}"
                            "QPushButton:focus{border-image:url(/mnt/user-data/.app/appPluginsPics/"
                            "Ins_button_d);color:rgb(255,255,255);}"
                            "QPushButton:disabled{color:rgb(146,146,146);border-image:url(/mnt/"
                            "user-data/.app/appPluginsPics/L_button_d);}"));
}

void TestCSwitchLabel::tapClicks()
{
    Title title(true);
    FrontPanel::tap(title.button());
    QCOMPARE(title.clicked.count(), 1);
    FrontPanel::tap(title.button(), QPoint(0, 0));
    QCOMPARE(title.clicked.count(), 2);
}

void TestCSwitchLabel::slidingOffClicksNothing()
{
    Title title(true);
    const QPoint inside = title.button()->rect().center();
    FrontPanel::drag(title.button(), inside, inside - QPoint(0, 50));
    FrontPanel::drag(title.button(), inside, QPoint(title.button()->width(), inside.y()));
    QCOMPARE(title.clicked.count(), 0);
    QVERIFY(!title.button()->isDown());
    FrontPanel::tap(title.button());
    QCOMPARE(title.clicked.count(), 1);
}

void TestCSwitchLabel::slidingBackClicks()
{
    Title title(true);
    QWindow* window = title.form.windowHandle();
    const QPoint inside = FrontPanel::inWindow(title.button(), title.button()->rect().center());
    QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, inside);
    QTest::mouseMove(window, inside - QPoint(0, 50));
    QVERIFY(!title.button()->isDown());
    QCOMPARE(title.clicked.count(), 0);
    QTest::mouseMove(window, inside);
    QVERIFY(title.button()->isDown());
    QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, inside);
    QCOMPARE(title.clicked.count(), 1);
}

void TestCSwitchLabel::disabledClicksNothing()
{
    Title title(true);
    title.label->setDisabled(true);
    QVERIFY(!title.button()->isEnabled());
    FrontPanel::tap(title.button());
    QCOMPARE(title.clicked.count(), 0);
    title.label->setDisabled(false);
    FrontPanel::tap(title.button());
    QCOMPARE(title.clicked.count(), 1);
}

void TestCSwitchLabel::followsLanguage()
{
    const Title plain(false);
    {
        const TestTranslator german(QStringLiteral("de:"));
        QCoreApplication::sendPostedEvents();
        QCOMPARE(plain.text()->text(), QStringLiteral("de:TITLE"));
        const CSwitchLabel checkable(TitleId, nullptr, true);
        QCOMPARE(checkable.findChild<QPushButton*>()->text(), QStringLiteral("de:TITLE"));
        const TestTranslator french(QStringLiteral("fr:"));
        QCoreApplication::sendPostedEvents();
        QCOMPARE(plain.text()->text(), QStringLiteral("fr:TITLE"));
    }
    QCoreApplication::sendPostedEvents();
    QCOMPARE(plain.text()->text(), QStringLiteral("TITLE"));
}

void TestCSwitchLabel::emptyTitle()
{
    const CSwitchLabel none(nullptr, nullptr, false);
    const CSwitchLabel empty("", nullptr, true);
    QCOMPARE(none.findChild<QLabel*>()->text(), QString());
    QCOMPARE(empty.findChild<QPushButton*>()->text(), QString());
}

QTEST_MAIN(TestCSwitchLabel)
#include "test_cswitchlabel.moc"
