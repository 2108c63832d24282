// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "selectioncombcomponents.h"

#include "ccombobox.h"
#include "parameteredit.h"
#include "realcombcomponent.h"
#include "testtranslator.h"
#include "toolkitform.h"

#include <QAbstractItemView>
#include <QPushButton>
#include <QSlider>
#include <QtTest>

using namespace appPlugins;

namespace {

const char* g_labels[] = {"ZERO", "ONE", "TWO"};

/// A component in a form of its own, beside a numeric one, and what it reports, in order.
template<typename Component>
struct Choice
{
    template<typename... Arguments>
    explicit Choice(Arguments... arguments)
        : number(form.add(
              new RealCombComponent(&form, "NUMBER", false, nullptr, UNIT_VOLTAGE, 1, 0, 5, 1e-4)))
        , component(form.add(new Component(&form, "TITLE", false, nullptr, arguments...)))
    {
        QObject::connect(component, QOverload<Uint16>::of(&Component::paraChanged), component,
                         [this](Uint16 value) { reports.append(QString::number(value)); });
        QObject::connect(component, QOverload<const char*>::of(&Component::paraChanged), component,
                         [this](const char* id) { reports.append(QLatin1String(id)); });
        form.start();
    }

    Component* operator->() const { return component; }

    QPushButton* button(const char* name) const
    {
        return component->template findChild<QPushButton*>(QLatin1String(name));
    }
    CComboBox* combo() const { return component->template findChild<CComboBox*>(); }
    QSlider* slider() const { return component->template findChild<QSlider*>(); }

    void focusNumber() const
    {
        FrontPanel::tap(number->findChild<ParameterTextEdit*>()->viewport());
    }

    /// Opens the list with a finger and chooses with another tap.
    void chooseByFinger(int index) const
    {
        FrontPanel::tap(combo());
        QAbstractItemView* view = combo()->view();
        QTRY_VERIFY(view->isVisible() && view->window()->windowHandle()->isExposed());
        // A tap that follows within the double-click time belongs to the one that opened the list.
        QTRY_VERIFY((FrontPanel::tap(view->viewport(),
                                     view->visualRect(view->model()->index(index, 0)).center()),
                     !view->isVisible()));
        FrontPanel::settle();
    }

    ToolkitForm form;
    RealCombComponent* number;
    Component* component;
    QStringList reports;
};

using Boolean = Choice<BooleanCombComponent>;
using Combo = Choice<ComboBoxCombComponent>;
using Slider = Choice<BooleanSliderCombComponent>;

const Uint16 None = 0;

QStringList list(const char* value, const char* id)
{
    return {QLatin1String(value), QLatin1String(id)};
}

} // namespace

class TestSelectionCombComponents : public QObject
{
    Q_OBJECT

private slots:
    void booleanByFinger();
    void booleanAfterNumber();
    void booleanByProgram();
    void booleanWhileDisabled();
    void booleanFollowsLanguage();
    void comboByFinger();
    void comboSameChoiceIsSilent();
    void comboByProgram_data();
    void comboByProgram();
    void comboBySaveIdentifier();
    void comboWhileDisabled();
    void comboFollowsLanguage();
    void sliderHasLook();
    void sliderByFinger();
    void sliderByProgram();
    void sliderWhileDisabled();
};

void TestSelectionCombComponents::booleanByFinger()
{
    Boolean choice(None, g_labels);
    QCOMPARE(choice.button("left")->text(), QStringLiteral("ZERO"));
    QVERIFY(choice.button("left")->isChecked());
    FrontPanel::tap(choice.button("right"));
    QCOMPARE(int(choice->get()), 1);
    QCOMPARE(choice.reports, list("1", "ONE"));
    QCOMPARE(QLatin1String(choice->getSaveStrId()), QLatin1String("ONE"));
    FrontPanel::tap(choice.button("right"));
    QCOMPARE(choice.reports.size(), 2);
    FrontPanel::tap(choice.button("left"));
    QCOMPARE(choice.reports.mid(2), list("0", "ZERO"));
}

void TestSelectionCombComponents::booleanAfterNumber()
{
    Boolean choice(None, g_labels);
    choice.focusNumber();
    FrontPanel::press(Qt::Key_7);
    QWindow* window = choice.form.windowHandle();
    const QPoint point = FrontPanel::inWindow(choice.button("right"), QPoint(10, 10));
    QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, point);
    FrontPanel::settle();
    QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, point);
    FrontPanel::settle();
    QCOMPARE(choice.reports, list("1", "ONE"));
    QCOMPARE(choice.number->getStringValue(), QStringLiteral("1.0000"));
}

void TestSelectionCombComponents::booleanByProgram()
{
    Boolean choice(None, g_labels);
    for (bool focused : {false, true}) {
        if (focused)
            choice->setFocus();
        QVERIFY(choice->set(Uint16(1)));
        QVERIFY(choice.button("right")->isChecked());
        QVERIFY(choice->set("ZERO"));
        QVERIFY(choice.button("left")->isChecked());
        QVERIFY(!choice->set(Uint16(2)));
        QVERIFY(!choice->set("TWO"));
        QCOMPARE(int(choice->get()), 0);
    }
    QVERIFY(choice.reports.isEmpty());
}

void TestSelectionCombComponents::booleanWhileDisabled()
{
    Boolean choice(None, g_labels);
    choice->setDisable(true);
    FrontPanel::tap(choice.button("right"));
    QVERIFY(!choice->set(Uint16(1)));
    QVERIFY(!choice->set("ONE"));
    QCOMPARE(int(choice->get()), 0);
    QVERIFY(choice.button("left")->isChecked());
    choice->setDisable(false);
    FrontPanel::tap(choice.button("right"));
    QCOMPARE(choice.reports, list("1", "ONE"));
}

void TestSelectionCombComponents::booleanFollowsLanguage()
{
    const Boolean choice(None, g_labels);
    const TestTranslator german(QStringLiteral("de:"));
    FrontPanel::settle();
    QCOMPARE(choice.button("right")->text(), QStringLiteral("de:ONE"));
    QVERIFY(choice.reports.isEmpty());
}

void TestSelectionCombComponents::comboByFinger()
{
    Combo choice(None, Uint16(2), g_labels);
    QCOMPARE(choice.combo()->currentText(), QStringLiteral("ZERO"));
    QCOMPARE(choice.combo()->count(), 3);
    choice.chooseByFinger(2);
    QCOMPARE(choice.reports, list("2", "TWO"));
    QCOMPARE(int(choice->get()), 2);

    choice.focusNumber();
    choice.chooseByFinger(1);
    QCOMPARE(choice.reports.mid(2), list("1", "ONE"));
}

void TestSelectionCombComponents::comboSameChoiceIsSilent()
{
    const Combo choice(Uint16(1), Uint16(2), g_labels);
    choice.chooseByFinger(1);
    QVERIFY(choice.reports.isEmpty());
}

void TestSelectionCombComponents::comboByProgram_data()
{
    QTest::addColumn<bool>("focused");
    QTest::newRow("without focus") << false;
    QTest::newRow("with focus") << true;
}

void TestSelectionCombComponents::comboByProgram()
{
    QFETCH(bool, focused);

    Combo choice(None, Uint16(2), g_labels);
    if (focused)
        choice.combo()->setFocus();
    QVERIFY(choice->set(Uint16(2)));
    QCOMPARE(choice.combo()->currentIndex(), 2);
    QVERIFY(!choice->set(Uint16(3)));
    QCOMPARE(choice.combo()->currentIndex(), 2);
    QVERIFY(choice.reports.isEmpty());
}

void TestSelectionCombComponents::comboBySaveIdentifier()
{
    Combo choice(None, Uint16(2), g_labels);
    QVERIFY(choice->set("TWO"));
    QCOMPARE(int(choice->get()), 2);
    QCOMPARE(choice.combo()->currentIndex(), 2);
    for (const char* unknown : {"", "two", "TWO ", "THREE"})
        QVERIFY(!choice->set(unknown));
    QCOMPARE(int(choice->get()), 2);
    QVERIFY(choice.reports.isEmpty());
}

void TestSelectionCombComponents::comboWhileDisabled()
{
    Combo choice(None, Uint16(2), g_labels);
    choice->setDisable(true);
    QVERIFY(!choice.combo()->isEnabled());
    FrontPanel::tap(choice.combo());
    QVERIFY(!choice.combo()->view()->isVisible());
    QVERIFY(!choice->set(Uint16(1)));
    QCOMPARE(choice.combo()->currentIndex(), 0);
}

void TestSelectionCombComponents::comboFollowsLanguage()
{
    Combo choice(Uint16(1), Uint16(2), g_labels);
    choice.combo()->setFocus();
    const TestTranslator german(QStringLiteral("de:"));
    FrontPanel::settle();
    for (int i = 0; i < 3; ++i)
        QCOMPARE(choice.combo()->itemText(i), QStringLiteral("de:") + QLatin1String(g_labels[i]));
    QCOMPARE(choice.combo()->currentIndex(), 1);
    QCOMPARE(int(choice->get()), 1);
    QVERIFY(choice.reports.isEmpty());
}

void TestSelectionCombComponents::sliderHasLook()
{
    const Slider choice(None);
    QCOMPARE(
        choice.slider()->styleSheet(),
        QStringLiteral(
            "QSlider::groove:horizontal {border:2px solid rgb(255,255,255);border-radius:17px;}"
            "QSlider::handle:horizontal "
            "{border-image:url(/mnt/user-data/.app/appPluginsPics/toggle button.png);width:34px;}"
            "QSlider::add-page:horizontal{background:transparent;border:2px solid "
            "rgb(255,255,255);border-top-right-radius:17px;border-bottom-right-radius:17px;}"
            "QSlider::sub-page:horizontal{background:blue;border:2px solid "
            "rgb(255,255,255);border-top-left-radius:17px;border-bottom-left-radius:17px;}"));
}

void TestSelectionCombComponents::sliderByFinger()
{
    Slider choice(None);
    FrontPanel::tap(choice.slider(), QPoint(choice.slider()->width() - 3, 20));
    QCOMPARE(int(choice->get()), 1);
    QCOMPARE(choice.reports, QStringList{QStringLiteral("1")});
    QVERIFY(!LogCapture::messages()
                 .filter(QStringLiteral("debug: slt_currentIndexChanged QSlider"))
                 .isEmpty());
    FrontPanel::tap(choice.slider(), QPoint(3, 20));
    QCOMPARE(int(choice->get()), 0);
    QCOMPARE(choice.reports, (QStringList{QStringLiteral("1"), QStringLiteral("0")}));
}

void TestSelectionCombComponents::sliderByProgram()
{
    Slider choice(None);
    for (bool focused : {false, true}) {
        if (focused)
            choice.slider()->setFocus();
        choice->set(1);
        QCOMPARE(choice.slider()->value(), 1);
        QCOMPARE(int(choice->get()), 1);
        choice->set(1);
        choice->set(2);
        QCOMPARE(int(choice->get()), 1);
        choice->set(0);
        QCOMPARE(choice.slider()->value(), 0);
    }
    QVERIFY(choice.reports.isEmpty());
}

void TestSelectionCombComponents::sliderWhileDisabled()
{
    Slider choice(None);
    choice->setDisable(true);
    choice->set(1);
    FrontPanel::tap(choice.slider(), QPoint(choice.slider()->width() - 3, 20));
    QCOMPARE(int(choice->get()), 0);
    QCOMPARE(choice.slider()->value(), 0);
    QVERIFY(choice.reports.isEmpty());
}

QTEST_MAIN(TestSelectionCombComponents)
#include "test_selectioncombcomponents.moc"
