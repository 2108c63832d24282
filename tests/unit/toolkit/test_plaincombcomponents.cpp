// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "plaincombcomponents.h"

#include "testtranslator.h"
#include "toolkitform.h"

#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>

using namespace appPlugins;

namespace {

struct Name
{
    Name()
        : component(form.add(new StringCombComponent(&form, "NAME", false, nullptr,
                                                     QRegExp(QStringLiteral("[a-z]+")))))
        , changed(component, QOverload<QString>::of(&StringCombComponent::paraChanged))
    {
        form.start();
    }

    QLineEdit* line() const { return component->findChild<QLineEdit*>(); }

    ToolkitForm form;
    StringCombComponent* component;
    QSignalSpy changed;
};

struct Action
{
    explicit Action(std::function<bool()> action)
        : component(form.add(
              new ActionCombComponent(&form, "TITLE", false, nullptr, "GO", std::move(action))))
        , triggered(component, &ActionCombComponent::triggered)
    {
        form.start();
    }

    QPushButton* button() const { return component->findChild<QPushButton*>(); }

    ToolkitForm form;
    ActionCombComponent* component;
    QSignalSpy triggered;
};

} // namespace

class TestPlainCombComponents : public QObject
{
    Q_OBJECT

private slots:
    void haveLook();
    void stringIsSetByProgram_data();
    void stringIsSetByProgram();
    void stringIsTyped();
    void stringWhileDisabled();
    void actionIsDoneByFinger();
    void actionThatFails();
    void actionByProgram();
    void actionWhileDisabled();
    void actionFollowsLanguage();
    void emptyHoldsItsPlace();
};

void TestPlainCombComponents::haveLook()
{
    const Name name;
    QCOMPARE(name.line()->styleSheet(),
             QStringLiteral(
                 "QLineEdit{border: 2px solid rgb(255,255,255) ;border-radius : "
                 "0px;color:rgb(255,255,255);padding-right:30px; background:transparent;}\n"
                 "QLineEdit:focus{border: 1px solid  "
                 "blue;border-radius:2px;color:rgb(255,255,255);padding-right:30px;background:"
                 "transparent;}\n"
                 "QLineEdit:disabled{background:transparent;border: 2px solid rgb(146,146,146) "
                 ";border-radius : 0px;color:rgb(146,146,146);padding-right:30px;}\n"));
    const Action action(DummyAction);
    QCOMPARE(action.button()->styleSheet(),
             QStringLiteral("QPushButton{border-image:url(/mnt/user-data/.app/appPluginsPics/"
                            "R_button_n.png);color:rgb(255,255,255); }"
                            "QPushButton:focus{border-image:url(/mnt/user-data/.app/appPluginsPics/"
                            "R_button_d.png);color:rgb(255,255,255);outline:none;}"
                            "QPushButton:pressed{border-image:url(/mnt/user-data/.app/"
                            "appPluginsPics/R_button_d.png);color:rgb(255,255,255);outline:none;}"
                            "QPushButton:disabled{outline:none;border-image:url(/mnt/user-data/"
                            ".app/appPluginsPics/R_button_d.png);color:rgb(146,146,146);}"));
}

void TestPlainCombComponents::stringIsSetByProgram_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("accepted");

    QTest::newRow("matches") << QStringLiteral("abc") << true;
    QTest::newRow("matches in part") << QStringLiteral("abc1") << false;
    QTest::newRow("empty") << QString() << false;
    QTest::newRow("other letters") << QStringLiteral("ABC") << false;
}

void TestPlainCombComponents::stringIsSetByProgram()
{
    QFETCH(QString, text);
    QFETCH(bool, accepted);

    Name name;
    QVERIFY(name.component->set(QStringLiteral("old")));
    QCOMPARE(name.component->set(text), accepted);
    const QString expected = accepted ? text : QStringLiteral("old");
    QCOMPARE(name.component->get(), expected);
    QCOMPARE(name.line()->text(), expected);
    QCOMPARE(name.changed.count(), 0);
}

void TestPlainCombComponents::stringIsTyped()
{
    Name name;
    QVERIFY(name.component->set(QStringLiteral("ab")));
    // Behind the text.
    FrontPanel::tap(name.line(), QPoint(name.line()->width() - 3, name.line()->height() / 2));
    FrontPanel::press(Qt::Key_Return);
    QCOMPARE(name.changed.count(), 0);
    FrontPanel::type(QStringLiteral("cd"));
    QCOMPARE(name.changed.count(), 0);
    FrontPanel::press(Qt::Key_Return);
    QCOMPARE(name.changed.count(), 1);
    QCOMPARE(name.changed.first().first().toString(), QStringLiteral("abcd"));
    QCOMPARE(name.component->get(), QStringLiteral("abcd"));
    FrontPanel::press(Qt::Key_Return);
    QCOMPARE(name.changed.count(), 1);
}

void TestPlainCombComponents::stringWhileDisabled()
{
    Name name;
    name.component->setDisable(true);
    QVERIFY(!name.line()->isEnabled());
    QVERIFY(!name.component->set(QStringLiteral("abc")));
    QCOMPARE(name.component->get(), QString());
}

void TestPlainCombComponents::actionIsDoneByFinger()
{
    int done = 0;
    Action action([&done] {
        ++done;
        return true;
    });
    QCOMPARE(action.button()->text(), QStringLiteral("GO"));
    FrontPanel::tap(action.button());
    QCOMPARE(done, 1);
    QCOMPARE(action.triggered.count(), 1);
}

void TestPlainCombComponents::actionThatFails()
{
    Action action([] { return false; });
    FrontPanel::tap(action.button());
    QVERIFY(!action.component->execute());
    QCOMPARE(action.triggered.count(), 0);
}

void TestPlainCombComponents::actionByProgram()
{
    Action action([] { return false; });
    action.component->setActionFunction(DummyAction);
    QVERIFY(action.component->execute());
    QCOMPARE(action.triggered.count(), 1);
}

void TestPlainCombComponents::actionWhileDisabled()
{
    int done = 0;
    Action action([&done] {
        ++done;
        return true;
    });
    action.component->setDisable(true);
    FrontPanel::tap(action.button());
    QVERIFY(!action.component->execute());
    QCOMPARE(done, 0);
    QCOMPARE(action.triggered.count(), 0);
}

void TestPlainCombComponents::actionFollowsLanguage()
{
    const Action action(DummyAction);
    const TestTranslator german(QStringLiteral("de:"));
    FrontPanel::settle();
    QCOMPARE(action.button()->text(), QStringLiteral("de:GO"));
    action.component->setButtonTextId("STOP");
    QCOMPARE(action.button()->text(), QStringLiteral("de:STOP"));
}

void TestPlainCombComponents::emptyHoldsItsPlace()
{
    ToolkitForm form;
    auto* empty = form.add(new EmptyCombComponent(&form, "NOTHING", false, "V"));
    form.start();
    QCOMPARE(empty->layout()->count(), 3);
    QVERIFY(empty->layout()->itemAt(1)->geometry().width() > 0);
    QVERIFY(empty->isAvailable());
}

QTEST_MAIN(TestPlainCombComponents)
#include "test_plaincombcomponents.moc"
