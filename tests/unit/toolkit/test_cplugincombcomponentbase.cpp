// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "cplugincombcomponentbase.h"

#include "cplugincombcomponent.h"
#include "parameteredit.h"
#include "testtranslator.h"
#include "toolkitform.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>

using namespace appPlugins;

namespace {

struct Row
{
    explicit Row(bool checkable)
        : component(form.add(new EmptyCombComponent(&form, "TITLE", checkable, "UNIT")))
        , clicked(component, &CPluginCombComponentBase::sgnTitleSwitchLabelClicked)
    {
        form.start();
    }

    QRect item(int index) const { return component->layout()->itemAt(index)->geometry(); }
    QPushButton* title() const { return component->findChild<QPushButton*>(); }

    QLabel* unit() const { return qobject_cast<QLabel*>(component->layout()->itemAt(2)->widget()); }

    ToolkitForm form;
    CPluginCombComponentBase* component;
    QSignalSpy clicked;
};

} // namespace

class TestCPluginCombComponentBase : public QObject
{
    Q_OBJECT

private slots:
    void hasTitleInputAndUnit();
    void stretchAndSpacing();
    void titleClickCarriesStackIndex();
    void plainTitleIsNoButton();
    void disabledIsNotAvailable();
    void followsLanguage();
    void signalTypesAreKnown();
};

void TestCPluginCombComponentBase::hasTitleInputAndUnit()
{
    const Row row(false);
    QCOMPARE(row.component->layout()->count(), 3);
    QCOMPARE(row.component->layout()->spacing(), 6);
    QCOMPARE(row.component->layout()->contentsMargins(), QMargins());
    QVERIFY(row.item(0).right() < row.item(1).left());
    QVERIFY(row.item(1).right() < row.item(2).left());
    QCOMPARE(row.unit()->text(), QStringLiteral("UNIT"));
    QCOMPARE(row.unit()->alignment(), Qt::AlignLeft | Qt::AlignVCenter);
    QCOMPARE(row.unit()->styleSheet(),
             QStringLiteral("QLabel{color:rgb(255,255,255);}QLabel:disabled{color:rgb(146,146,146);"
                            "}"));
    QCOMPARE(row.component->focusPolicy(), Qt::ClickFocus);
    QCOMPARE(row.component->font().pixelSize(), 16);
    QCOMPARE(row.component->getStackedIndex(), 0);
}

void TestCPluginCombComponentBase::stretchAndSpacing()
{
    const Row row(false);
    row.component->setCombComponentsHorLayout(1, 2, 1, 10);
    row.component->layout()->activate();
    QCOMPARE(row.component->layout()->spacing(), 10);
    QCOMPARE(row.item(0).width(), row.item(2).width());
    QVERIFY(qAbs(row.item(1).width() - 2 * row.item(0).width()) <= 2);
    QCOMPARE(row.item(1).left(), row.item(0).right() + 11);

    // A row that holds something else is not laid out anew.
    auto* layout = qobject_cast<QHBoxLayout*>(row.component->layout());
    layout->addWidget(new QLabel(row.component));
    row.component->setCombComponentsHorLayout(1, 1, 1, 3);
    QCOMPARE(layout->spacing(), 10);
    QCOMPARE(layout->stretch(1), 2);
}

void TestCPluginCombComponentBase::titleClickCarriesStackIndex()
{
    Row row(true);
    FrontPanel::tap(row.title());
    row.component->setStackedIndex(7);
    FrontPanel::tap(row.title());
    QCOMPARE(row.clicked.count(), 2);
    QCOMPARE(row.clicked.at(0).first().toInt(), 0);
    QCOMPARE(row.clicked.at(1).first().toInt(), 7);
}

void TestCPluginCombComponentBase::plainTitleIsNoButton()
{
    Row row(false);
    QVERIFY(row.title() == nullptr);
    FrontPanel::tap(row.component, row.item(0).center());
    QCOMPARE(row.clicked.count(), 0);
}

void TestCPluginCombComponentBase::disabledIsNotAvailable()
{
    Row row(true);
    QVERIFY(row.component->isAvailable());
    row.component->setDisable(true);
    QVERIFY(!row.component->isAvailable());
    QVERIFY(!row.title()->isEnabled());
    QVERIFY(!row.unit()->isEnabled());
    FrontPanel::tap(row.title());
    row.component->slt_TitleSwitchLabelClicked();
    QCOMPARE(row.clicked.count(), 0);
    row.component->setDisable(false);
    FrontPanel::tap(row.title());
    QCOMPARE(row.clicked.count(), 1);
}

void TestCPluginCombComponentBase::followsLanguage()
{
    const Row row(true);
    const TestTranslator german(QStringLiteral("de:"));
    FrontPanel::settle();
    QCOMPARE(row.unit()->text(), QStringLiteral("de:UNIT"));
    QCOMPARE(row.title()->text(), QStringLiteral("de:TITLE"));
}

void TestCPluginCombComponentBase::signalTypesAreKnown()
{
    QVERIFY(QMetaType::type("Uint16") != QMetaType::UnknownType);
    QVERIFY(QMetaType::type("const char*") != QMetaType::UnknownType);
}

QTEST_MAIN(TestCPluginCombComponentBase)
#include "test_cplugincombcomponentbase.moc"
