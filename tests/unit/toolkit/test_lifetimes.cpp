// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "ccombobox.h"
#include "chorizontalslider.h"
#include "cplugincombcomponent.h"
#include "cpushbuttonwithimage.h"
#include "cradiobutton.h"
#include "cstackedcombocomponents.h"
#include "realtable.h"

#include <QtTest>

using namespace appPlugins;

namespace {

const char* g_choices[] = {"ZERO", "ONE", "TWO"};

/// How often a test builds, drives and destroys its widgets.
int rounds()
{
    bool ok = false;
    const int given = qEnvironmentVariableIntValue("MPB_LIFETIME_ROUNDS", &ok);
    return ok ? given : 10;
}

/// One of each widget that has not its own table.
void addEverything(ToolkitForm& form)
{
    form.add(new IntegerCombComponent(&form, "COUNT", true, "V", UNIT_EMPTY, 2, 30, 2, 1));
    form.add(new TabelRealCombComponent(&form, "CELL", false, "S", UNIT_TIME, 1e-5, 1, 0, 1e-9));
    form.add(new BooleanCombComponent(&form, "PAIR", true, nullptr, 1, g_choices));
    form.add(new ComboBoxCombComponent(&form, "LIST", false, nullptr, 0, 2, g_choices));
    form.add(new BooleanSliderCombComponent(&form, "SWITCH", false, nullptr, 0));
    form.add(new ActionCombComponent(&form, "ACTION", false, nullptr, "GO", DummyAction));
    form.add(new StringCombComponent(&form, "NAME", false, nullptr, QRegExp()));
    form.add(new CPushButtonWithImage("OPEN", "/no/such.png", &form));
    auto* stack = form.add(new CStackedComboComponents(&form));
    for (const char* title : {"A", "B"})
        stack->addWidget(new EmptyCombComponent(stack, title, true, nullptr));
}

} // namespace

/// Widgets come and go at every moment of their use; a sanitizer sees what is left or used too
/// late.
class TestLifetimes : public QObject
{
    Q_OBJECT

private slots:
    void drivenForm();
    void formWithKeysInTheQueue();
    void editorDestroyedByItsOwnReport();
    void focusedComponentWithUnfinishedInput();
    void tableWithOpenEditor();
    void rowRemovedUnderEditor();
    void tableClearedUnderEditor();
};

void TestLifetimes::drivenForm()
{
    for (int i = 0; i < rounds(); ++i) {
        ToolkitForm form;
        addEverything(form);
        QVERIFY(form.start());
        for (QWidget* widget : form.findChildren<QWidget*>()) {
            if (widget->isVisible() && qobject_cast<CComboBox*>(widget) == nullptr)
                FrontPanel::tap(widget);
            for (int key : {int(Qt::Key_Up), int(Qt::Key_3), int(QT_KEY_KM)})
                FrontPanel::press(key);
        }
        QCOMPARE(form.findChild<IntegerCombComponent*>()->get(), 30.0);
    }
}

void TestLifetimes::formWithKeysInTheQueue()
{
    for (int i = 0; i < rounds(); ++i) {
        ToolkitForm form;
        addEverything(form);
        QVERIFY(form.start());
        auto* count = form.findChild<IntegerCombComponent*>();
        count->setFocus();
        FrontPanel::press(Qt::Key_7);
        for (int key : {int(QT_KEY_X1), int(Qt::Key_Up), int(QT_KEY_HELP)}) {
            FrontPanel::post(QEvent::KeyPress, key);
            FrontPanel::post(QEvent::KeyRelease, key);
        }
        if (i % 2 == 0)
            QCoreApplication::sendPostedEvents(count->findChild<ParameterTextEdit*>());
        delete count;
        FrontPanel::settle();
        QVERIFY(form.findChild<IntegerCombComponent*>() == nullptr);
    }
}

void TestLifetimes::editorDestroyedByItsOwnReport()
{
    for (int i = 0; i < rounds(); ++i) {
        ToolkitForm form;
        QPointer<RealCombComponent> number = form.add(
            new RealCombComponent(&form, "NUMBER", false, nullptr, UNIT_VOLTAGE, 1, 0, 5, 1e-4));
        QVERIFY(form.start());
        QObject::connect(number, QOverload<double>::of(&RealCombComponent::paraChanged), number,
                         &QObject::deleteLater);
        number->setFocus();
        FrontPanel::burst({Qt::Key_3, QT_KEY_X1, Qt::Key_Up});
        QVERIFY(number.isNull());
    }
}

void TestLifetimes::focusedComponentWithUnfinishedInput()
{
    for (int i = 0; i < rounds(); ++i) {
        ToolkitForm form;
        auto* number = form.add(
            new RealCombComponent(&form, "NUMBER", false, nullptr, UNIT_VOLTAGE, 1, 0, 5, 1e-4));
        auto* name = form.add(new StringCombComponent(&form, "NAME", false, nullptr, QRegExp()));
        QVERIFY(form.start());
        QWidget* const focused = i % 2 == 0 ? static_cast<QWidget*>(number) : name;
        focused->setFocus();
        FrontPanel::press(Qt::Key_3);
        QVERIFY(focused->hasFocus());
        if (i % 4 < 2)
            delete focused;
    }
}

void TestLifetimes::tableWithOpenEditor()
{
    for (int i = 0; i < rounds(); ++i) {
        const RealTable real(5);
        real.doubleTapCell(i % 4, i % 2);
        QCOMPARE(real.editors().size(), 1);
        FrontPanel::knob(1);
        if (i % 3 == 0)
            FrontPanel::press(Qt::Key_5);
        FrontPanel::post(QEvent::KeyPress, QT_KEY_KNOB);
    }
    FrontPanel::settle();
}

void TestLifetimes::rowRemovedUnderEditor()
{
    for (int i = 0; i < rounds(); ++i) {
        const RealTable real(3);
        real.doubleTapCell(2, i % 2);
        FrontPanel::press(Qt::Key_5);
        FrontPanel::post(QEvent::KeyRelease, QT_KEY_MU);
        real.table->slt_remove();
        FrontPanel::settle();
        QCOMPARE(real.model->rowCount(), 2);
        QVERIFY(real.editors().isEmpty());
        QCOMPARE(real.cell(1, 0), QStringLiteral("2.000u"));
    }
}

void TestLifetimes::tableClearedUnderEditor()
{
    for (int i = 0; i < rounds(); ++i) {
        const RealTable real(3);
        real.doubleTapCell(1, i % 2);
        FrontPanel::knob(2);
        real.table->slt_clear();
        FrontPanel::settle();
        QVERIFY(real.editors().isEmpty());
        real.table->slt_insert();
        real.doubleTapCell(0, 0);
        QCOMPARE(real.shown(), QStringLiteral("2.000u"));
    }
}

QTEST_MAIN(TestLifetimes)
#include "test_lifetimes.moc"
