// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "cstackedcombocomponents.h"

#include "cplugincombcomponent.h"
#include "toolkitform.h"

#include <QPushButton>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QtTest>

using namespace appPlugins;

namespace {

struct Stack
{
    Stack()
        : stack(form.add(new CStackedComboComponents(&form)))
        , changed(stack, &CStackedComboComponents::currentChanged)
    {
        for (const char* title : {"ZERO", "ONE", "TWO"})
            indices.append(stack->addWidget(new EmptyCombComponent(stack, title, true, nullptr)));
        form.start();
        changed.clear();
    }

    int current() const { return stack->findChild<QStackedWidget*>()->currentIndex(); }

    QPushButton* title() const
    {
        return stack->findChild<QStackedWidget*>()->currentWidget()->findChild<QPushButton*>();
    }

    QVector<int> changes() const
    {
        QVector<int> result;
        for (const QList<QVariant>& arguments : changed)
            result.append(arguments.first().value<Uint16>());
        return result;
    }

    ToolkitForm form;
    CStackedComboComponents* stack;
    QSignalSpy changed;
    QVector<int> indices;
};

} // namespace

class TestCStackedComboComponents : public QObject
{
    Q_OBJECT

private slots:
    void givesIndices();
    void titleCyclesThroughStack();
    void programShowsOne();
    void indexThatNobodyHas();
    void disabledStays();
    void emptyStackStays();
};

void TestCStackedComboComponents::givesIndices()
{
    const Stack stack;
    QCOMPARE(stack.indices, (QVector<int>{0, 1, 2}));
    const auto components = stack.stack->findChildren<CPluginCombComponentBase*>();
    QCOMPARE(components.size(), 3);
    for (const CPluginCombComponentBase* component : components)
        QVERIFY(stack.indices.contains(component->getStackedIndex()));
    QCOMPARE(stack.current(), 0);
    QCOMPARE(stack.title()->text(), QStringLiteral("ZERO"));
}

void TestCStackedComboComponents::titleCyclesThroughStack()
{
    Stack stack;
    for (int expected : {1, 2, 0, 1}) {
        FrontPanel::tap(stack.title());
        QCOMPARE(stack.current(), expected);
    }
    QCOMPARE(stack.changes(), (QVector<int>{1, 2, 0, 1}));
}

void TestCStackedComboComponents::programShowsOne()
{
    Stack stack;
    stack.stack->setCurrentIndex(2);
    QCOMPARE(stack.current(), 2);
    stack.stack->setCurrentIndex(2);
    QCOMPARE(stack.changes(), QVector<int>{2});
}

void TestCStackedComboComponents::indexThatNobodyHas()
{
    Stack stack;
    stack.stack->setCurrentIndex(3);
    stack.stack->setCurrentIndex(65535);
    QCOMPARE(stack.current(), 0);
    QVERIFY(stack.changes().isEmpty());
}

void TestCStackedComboComponents::disabledStays()
{
    Stack stack;
    stack.stack->setDisabled(true);
    FrontPanel::tap(stack.title());
    QCOMPARE(stack.current(), 0);
    stack.stack->setDisabled(false);
    FrontPanel::tap(stack.title());
    QCOMPARE(stack.current(), 1);
}

void TestCStackedComboComponents::emptyStackStays()
{
    CStackedComboComponents empty(nullptr);
    empty.slt_stackedWidgetClicked(0);
    QCOMPARE(empty.findChild<QStackedWidget*>()->currentIndex(), -1);
}

QTEST_MAIN(TestCStackedComboComponents)
#include "test_cstackedcombocomponents.moc"
