// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "ccombobox.h"
#include "cplugincombcomponent.h"
#include "cpushbuttonwithimage.h"
#include "cstackedcombocomponents.h"
#include "realcomponent.h"
#include "realtable.h"

#include <QHash>
#include <QtTest>

#include <functional>

using namespace appPlugins;

namespace {

const char* g_choices[] = {"ZERO", "ONE", "TWO"};

/// Counts how often each widget gets a style while this lives: its style sheets are parsed, and
/// their rules looked up again, each time.
class StyleChanges : public QObject
{
public:
    StyleChanges() { QCoreApplication::instance()->installEventFilter(this); }

    int of(const QObject* widget) const { return m_counts.value(widget); }
    QList<int> counts() const { return m_counts.values(); }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::StyleChange)
            ++m_counts[watched];
        return QObject::eventFilter(watched, event);
    }

private:
    QHash<const QObject*, int> m_counts;
};

void addEverything(ToolkitForm& form)
{
    form.add(new RealCombComponent(&form, "NUMBER", true, "V", UNIT_VOLTAGE, 1, 0, 5, 1e-4));
    form.add(new BooleanCombComponent(&form, "PAIR", true, nullptr, 1, g_choices));
    form.add(new ComboBoxCombComponent(&form, "LIST", false, nullptr, 0, 2, g_choices));
    form.add(new BooleanSliderCombComponent(&form, "SWITCH", false, nullptr, 0));
    form.add(new ActionCombComponent(&form, "ACTION", false, nullptr, "GO", DummyAction));
    form.add(new StringCombComponent(&form, "NAME", false, nullptr, QRegExp()));
    form.add(new CPushButtonWithImage("OPEN", "/no/such.png", &form));
    auto* stack = form.add(new CStackedComboComponents(&form));
    for (const char* title : {"A", "B"})
        stack->addWidget(new EmptyCombComponent(stack, title, true, nullptr));
    form.add(new CRealTableView(&form, 2, RealTable::columns().data()));
}

using Action = std::function<void(RealComponent&)>;

} // namespace

Q_DECLARE_METATYPE(Action)

/// Style sheets are applied while a widget is built. What the user or a program does afterwards
/// applies none, but to the prefix, whose look follows the focus of the digits beside it.
class TestStyleSheets : public QObject
{
    Q_OBJECT

private slots:
    void built();
    void shown();
    void used();
    void number_data();
    void number();
    void editedTable();
};

// The style of the widget above, which a new widget takes over, and the widget's own.
void TestStyleSheets::built()
{
    const StyleChanges changes;
    ToolkitForm form;
    addEverything(form);
    QVERIFY(!changes.counts().isEmpty());
    for (int count : changes.counts())
        QVERIFY2(count <= 2, qPrintable(QString::number(count)));
}

void TestStyleSheets::shown()
{
    ToolkitForm form;
    addEverything(form);
    const StyleChanges changes;
    QVERIFY(form.start());
    QCOMPARE(changes.counts(), QList<int>());
}

void TestStyleSheets::used()
{
    ToolkitForm form;
    addEverything(form);
    QVERIFY(form.start());
    // The list that pops up is built when it is first asked for.
    const QList<QWidget*> widgets = form.findChildren<QWidget*>();
    const StyleChanges changes;
    for (QWidget* widget : widgets) {
        FrontPanel::tap(widget);
        for (int key : {int(Qt::Key_Up), int(Qt::Key_3), int(Qt::Key_Escape)})
            FrontPanel::press(key);
    }
    for (const QWidget* widget : widgets) {
        if (qobject_cast<const CUnit*>(widget) == nullptr)
            QVERIFY2(changes.of(widget) == 0, widget->metaObject()->className());
    }
}

void TestStyleSheets::number_data()
{
    QTest::addColumn<bool>("focused");
    QTest::addColumn<Action>("action");
    QTest::addColumn<int>("ofPrefix");

    const auto row = [](const char* name, bool focused, int ofPrefix, const Action& action) {
        QTest::newRow(name) << focused << action << ofPrefix;
    };
    row("focus gained", false, 1, [](RealComponent& number) { number.focusOn(0); });
    row("focus lost", true, 1, [](RealComponent& number) { number.other->setFocus(); });
    row("knob", true, 0, [](RealComponent&) { FrontPanel::knob(12); });
    row("knob through the prefixes", true, 0, [](RealComponent&) { FrontPanel::knob(-12); });
    row("arrows", true, 0, [](RealComponent&) {
        for (int key : {Qt::Key_Right, Qt::Key_Right, Qt::Key_Left, Qt::Key_Left, Qt::Key_Left})
            FrontPanel::press(key);
    });
    row("typed and cancelled", true, 0, [](RealComponent&) {
        FrontPanel::type(QStringLiteral("2.5"));
        FrontPanel::press(Qt::Key_Cancel);
    });
    row("typed and confirmed", true, 1, [](RealComponent&) {
        FrontPanel::type(QStringLiteral("2.5"));
        FrontPanel::press(QT_KEY_KM);
    });
    row("value set", false, 0, [](RealComponent& number) { number->set(0.0025); });
    row("value set while focused", true, 0, [](RealComponent& number) { number->set(0.0025); });
    row("limits", true, 0, [](RealComponent& number) { number->setMaxMinValue(0, 0.5); });
    row("disabled and enabled", false, 0, [](RealComponent& number) {
        number->setDisable(true);
        number->setDisable(false);
    });
}

void TestStyleSheets::number()
{
    QFETCH(bool, focused);
    QFETCH(Action, action);
    RealComponent number(UNIT_VOLTAGE, 1, 0, 5, 1e-4);
    if (focused)
        number.focusOn(0);

    const StyleChanges changes;
    action(number);
    FrontPanel::settle();
    const CUnit* otherPrefix = number.other->findChild<CUnit*>();
    QTEST(changes.of(number.prefix()), "ofPrefix");
    for (const QWidget* widget : number.form.findChildren<QWidget*>()) {
        if (widget != number.prefix() && widget != otherPrefix)
            QVERIFY2(changes.of(widget) == 0, widget->metaObject()->className());
    }
}

void TestStyleSheets::editedTable()
{
    const RealTable real(30);
    const QList<QWidget*> before = real.form.findChildren<QWidget*>();
    const StyleChanges changes;
    real.doubleTapCell(1, 0);
    QCOMPARE(real.editors().size(), 1);
    FrontPanel::knob(2);
    FrontPanel::type(QStringLiteral("3.5"));
    FrontPanel::press(QT_KEY_MU);
    QCOMPARE(real.cell(1, 0), QStringLiteral("3.500u"));
    real.table->slt_insert();
    real.table->slt_remove();
    for (const QWidget* widget : before)
        QVERIFY2(changes.of(widget) == 0, widget->metaObject()->className());
    // The open editor's prefix takes the style of the table, its own, and that of the focus.
    for (int count : changes.counts())
        QVERIFY2(count <= 4, qPrintable(QString::number(count)));
}

QTEST_MAIN(TestStyleSheets)
#include "test_stylesheets.moc"
