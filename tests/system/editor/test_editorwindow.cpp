// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "editorsession.h"

#include "cstackedcombocomponents.h"
#include "cswitchlabel.h"
#include "frontpanelkeys.h"
#include "testtranslator.h"

#include <QAction>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QStackedWidget>
#include <QTextBrowser>
#include <QToolButton>

#include <algorithm>

using namespace appPlugins;

namespace {

const QVector<EditorHost::Action> AllActions = {EditorHost::Open,   EditorHost::Close,
                                                EditorHost::SaveAs, EditorHost::Default,
                                                EditorHost::Help,   EditorHost::Run};

const QStringList ActionTextIds = {
    QStringLiteral("ARBID_OPEN"),     QStringLiteral("ARBID_CLOSE"),
    QStringLiteral("STR_ID_SAVE_AS"), QStringLiteral("DBID_POWERON_STATE_DEFAULT_SETTING"),
    QStringLiteral("STR_ID_HELP"),    QStringLiteral("STR_UTILITY_RUN")};

const QString MainStyleSheet = QStringLiteral(
    "QLabel[objectName=\"title\"]{color:rgb(255,255,255);padding-left:15px;"
    "background-color:#1e1e1e;}\n"
    "QLabel[objectName=\"parameterContainer\"]{border:2px solid rgb(255,255,255);}\n"
    "QLabel[objectName=\"bottom\"]{background:#2e2e2e;}\n"
    "QLabel[objectName=\"multipulse thumbnail\"]{border:none; color:#000000; "
    "background-color:transparent;}\n"
    "QLabel[objectName=\"multipulse table\"]{border:none; background-color:#2e2e2e;}\n"
    "QToolBar{background-color: #1e1e1e;}\n"
    "QLabel{background-color:#2e2e2e;}\n");

// The bar is laid out for the 640 by 480 that the window has before the host gives it a size.
const QString ToolBarStyleSheet = QStringLiteral(
    "QToolBar{border-radius:1px; background-color:#1E1E1E;spacing:-15.1px;}"
    "QToolButton{padding-top:4px; padding-bottom:4px; width:88.0px;height:88.0px;margin-left:1px; "
    "margin-right:1px; border:none;font-size:15px;color:#cabc9f;font-family:\"Noto Sans medium\";}"
    "QToolButton:pressed{background-color:#3478f7; color:#ffffff;}"
    "QToolButton:disabled{color:#3f3f3f;}");

QLabel* label(const EditorHost& host, const char* name)
{
    return host.editor()->findChild<QLabel*>(QLatin1String(name));
}

QString titleOf(const QWidget* component)
{
    return component->findChild<CSwitchLabel*>()->findChild<QLabel*>()->text();
}

// The unit is the row's one plain label.
QString unitOf(const QWidget* component)
{
    for (const QLabel* part :
         component->findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly)) {
        if (part->metaObject() == &QLabel::staticMetaObject)
            return part->text();
    }
    return QStringLiteral("no label");
}

QStringList choices(const ComboBoxCombComponent* component)
{
    const auto* box = component->findChild<QComboBox*>();
    QStringList texts;
    for (int i = 0; i < box->count(); ++i)
        texts.append(box->itemText(i));
    return texts;
}

QString headerText(const QTableView* table, int column)
{
    return table->model()->headerData(column, Qt::Horizontal).toString();
}

QString cornerText(const QTableView* table)
{
    return table->findChild<QLabel*>(QString(), Qt::FindDirectChildrenOnly)->text();
}

QStringList actionTexts(const EditorHost& host)
{
    QStringList texts;
    for (const EditorHost::Action action : AllActions)
        texts.append(host.action(action)->text());
    return texts;
}

QImage imageOf(const QString& fileName)
{
    const QImage image(InstalledContent::PictureFolder + fileName);
    return image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

QImage iconImage(const QIcon& icon, const QSize& size, QIcon::Mode mode, QIcon::State state)
{
    return icon.pixmap(size, mode, state)
        .toImage()
        .convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

QList<QWidget*> helpWindows()
{
    QList<QWidget*> windows;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->findChild<QTextBrowser*>(QString(), Qt::FindDirectChildrenOnly) != nullptr)
            windows.append(window);
    }
    return windows;
}

bool writeHelpPage(const QByteArray& html)
{
    QDir().mkpath(InstalledContent::PictureFolder);
    QFile page(InstalledContent::PictureFolder + QLatin1String("DoublePulseHelpFile.html"));
    return page.open(QIODevice::WriteOnly) && page.write(html) == html.size();
}

} // namespace

class TestEditorWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void coversTheScreen();
    void partsAreNamed();
    void titleLooksAsPrescribed();
    void tableHasAFrame();
    void titlesAndUnits();
    void numbersStartWithTheirRanges_data();
    void numbersStartWithTheirRanges();
    void choicesStartAtTheFirst();
    void sourceSelectsThePageOfTheStack();

    void toolBarPlaceAndLook();
    void actionsInOrder();
    void runAloneIsCheckable();
    void iconsAreTheInstalledPictures();
    void editorWithoutPictures();

    void tableAtStart();
    void scrollBarOnlyWhereRowsDoNotFit();

    void helpShowsThePage();
    void helpDeletesItselfOnClose();
    void helpPressedAgain();
    void helpWithoutAPage();

    void closeWhileStopped();
    void closeWhileShownAsRunning();
    void closeSlotWhileRunning();
    void closeWhileRunningWithoutAParent();

    void languageChange();
};

void TestEditorWindow::initTestCase()
{
    QVERIFY(InstalledContent::install());
}

void TestEditorWindow::coversTheScreen()
{
    const LogCapture log;
    EditorHost host;
    host.show();
    QCOMPARE(host.exec([&] {
        QCOMPARE(host.editor()->geometry(), QRect(0, 0, 800, 481));
        const auto* content =
            host.editor()->findChild<QWidget*>(QStringLiteral("m_pSubClassFillArea"));
        QCOMPARE(content->geometry(), QRect(0, 0, 800, 480));
        QCOMPARE(host.toolBar()->geometry(), QRect(0, 411, 640, 70));
    }),
             0);
    QCOMPARE(EditorHost::record().warnings.size(), 2);
}

void TestEditorWindow::partsAreNamed()
{
    const EditorSession session;
    const EditorHost& host = session.host;
    QWidget* content = label(host, "m_pSubClassFillArea");
    QCOMPARE(content->parentWidget(), label(host, "mask"));
    for (const char* name :
         {"title", "parameterContainer", "multipulse table", "multipulse thumbnail"}) {
        QVERIFY2(label(host, name) != nullptr, name);
        QCOMPARE(label(host, name)->parentWidget(), content);
    }
    QWidget* panel = label(host, "parameterContainer");
    for (const QWidget* component :
         QVector<QWidget*>{host.count(), host.highLevel(), host.lowLevel(), host.delay(),
                           host.timer(), host.source(), host.slope(), host.load()})
        QVERIFY(panel->isAncestorOf(component));
    for (const QWidget* unnamed :
         QVector<QWidget*>{host.count(), host.timer(), host.source(), host.slope(), host.load()})
        QCOMPARE(unnamed->objectName(), QString());
    QVERIFY(label(host, "multipulse table")->isAncestorOf(host.table()));
    QVERIFY(host.editor()->isEnabled());
}

void TestEditorWindow::titleLooksAsPrescribed()
{
    const EditorSession session;
    const QLabel* title = label(session.host, "title");
    QCOMPARE(title->text(), QStringLiteral("STR_ID_MULTIPLE_PULSES"));
    QCOMPARE(title->font().family(), QStringLiteral("Frutiger LT Com 55 Roman"));
    QCOMPARE(title->font().pixelSize(), 16);
    QCOMPARE(title->font().weight(), 63);
    QCOMPARE(title->styleSheet(), MainStyleSheet);
    QCOMPARE(label(session.host, "parameterContainer")->styleSheet(), MainStyleSheet);
}

void TestEditorWindow::tableHasAFrame()
{
    EditorSession session;
    const QLabel* frame = label(session.host, "multipulse table");
    QCOMPARE(frame->focusPolicy(), Qt::NoFocus);
    QCOMPARE(frame->sizePolicy(), QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding));
    session.exec([&] { QCOMPARE(session.host.table()->geometry(), frame->rect()); });
}

void TestEditorWindow::titlesAndUnits()
{
    const EditorSession session;
    const EditorHost& host = session.host;
    const auto compare = [](const QWidget* component, const char* title, const char* unit) {
        QCOMPARE(titleOf(component), QString(QLatin1String(title)));
        QCOMPARE(unitOf(component), QString(QLatin1String(unit)));
        QVERIFY(component->findChildren<QPushButton*>().isEmpty());
    };
    compare(host.count(), "STR_ID_PULSES_NUMS", "");
    compare(host.highLevel(), "STR_ID_HIGH_LEVEL", "V");
    compare(host.lowLevel(), "STR_ID_LOW_LEVEL", "V");
    compare(host.delay(), "STR_ID_TRIG_DELAY", "ARBID_UNIT_S");
    compare(host.source(), "DBID_TRIGGER_SOURCE", "");
    compare(host.editor()->findChild<EmptyCombComponent*>(), "", "");
    compare(host.slope(), "DBID_TRIGGER_SLOPE", "");
    compare(host.timer(), "SEQID_TIMER", "ARBID_UNIT_S");
    compare(host.load(), "STR_ID_STAT_LOAD", "");
}

void TestEditorWindow::numbersStartWithTheirRanges_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<double>("start");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("resolution");
    QTest::addColumn<QString>("shown");
    const auto row = [](const char* name, double start, double maximum, double minimum,
                        double resolution, const char* shown) {
        QTest::newRow(name) << QString(QLatin1String(name)) << start << maximum << minimum
                            << resolution << QString(QLatin1String(shown));
    };
    row("count", 2, 30, 2, 1, "2");
    row("high level", 1.25, 5, -4.999, 1e-4, "1.2500");
    row("low level", -1.25, 4.999, -5, 1e-4, "-1.2500");
    row("delay", 1e-5, 1.5e-4, 1e-6, 1e-10, "10.0000u");
    row("timer", 1e-3, 500, 2e-6, 1e-7, "1.0000m");
}

void TestEditorWindow::numbersStartWithTheirRanges()
{
    QFETCH(QString, name);
    QFETCH(double, start);
    QFETCH(double, maximum);
    QFETCH(double, minimum);
    QFETCH(double, resolution);
    QFETCH(QString, shown);
    const EditorSession session;
    const EditorHost& host = session.host;
    const RealCombComponent* number = QHash<QString, RealCombComponent*>{
        {QStringLiteral("count"), host.count()},
        {QStringLiteral("high level"), host.highLevel()},
        {QStringLiteral("low level"), host.lowLevel()},
        {QStringLiteral("delay"), host.delay()},
        {QStringLiteral("timer"),
         host.timer()}}.value(name);

    double max = 0;
    double min = 0;
    number->getMaxMinValue(max, min);
    QCOMPARE(number->get(), start);
    QCOMPARE(max, maximum);
    QCOMPARE(min, minimum);
    QCOMPARE(number->getResolution(), resolution);
    QCOMPARE(number->getStringValue(), shown);
}

void TestEditorWindow::choicesStartAtTheFirst()
{
    const EditorSession session;
    const EditorHost& host = session.host;
    QCOMPARE(choices(host.source()), (QStringList{QStringLiteral("STR_ID_MANUAL"),
                                                  QStringLiteral("DBID_TRIGGER_SOURCE_EXTERNAL"),
                                                  QStringLiteral("SEQID_TIMER")}));
    QCOMPARE(choices(host.slope()), (QStringList{QStringLiteral("DBID_TRIGGER_SLOPE_POSITIVE"),
                                                 QStringLiteral("DBID_TRIGGER_SLOPE_NEGATIVE")}));
    QCOMPARE(choices(host.load()),
             (QStringList{QStringLiteral("STR_ID_50"), QStringLiteral("STR_ID_HI_Z")}));
    for (const ComboBoxCombComponent* choice : {host.source(), host.slope(), host.load()}) {
        QCOMPARE(int(choice->get()), 0);
        QCOMPARE(choice->findChild<QComboBox*>()->currentIndex(), 0);
    }
}

void TestEditorWindow::sourceSelectsThePageOfTheStack()
{
    EditorSession session;
    const EditorHost& host = session.host;
    const auto* stack =
        host.editor()->findChild<CStackedComboComponents*>()->findChild<QStackedWidget*>();
    QCOMPARE(stack->count(), 3);
    QVERIFY(qobject_cast<EmptyCombComponent*>(stack->widget(0)) != nullptr);
    QCOMPARE(stack->widget(1), host.slope());
    QCOMPARE(stack->widget(2), host.timer());
    session.exec([&] {
        QVERIFY(!host.slope()->isVisible() && !host.timer()->isVisible());
        host.choose(host.source(), 1);
        QVERIFY(host.slope()->isVisible() && !host.timer()->isVisible());
        host.choose(host.source(), 2);
        QVERIFY(!host.slope()->isVisible() && host.timer()->isVisible());
        host.choose(host.source(), 0);
        QCOMPARE(stack->currentIndex(), 0);
        QVERIFY(!host.slope()->isVisible() && !host.timer()->isVisible());
    });
}

void TestEditorWindow::toolBarPlaceAndLook()
{
    const EditorSession session;
    const QToolBar* bar = session.host.toolBar();
    QCOMPARE(bar->parentWidget(), session.host.editor());
    QCOMPARE(bar->geometry(), QRect(0, 411, 640, 70));
    QCOMPARE(bar->iconSize(), QSize(42, 42));
    QCOMPARE(bar->toolButtonStyle(), Qt::ToolButtonTextUnderIcon);
    QCOMPARE(bar->styleSheet(), ToolBarStyleSheet);
}

void TestEditorWindow::actionsInOrder()
{
    EditorSession session;
    const EditorHost& host = session.host;
    QCOMPARE(actionTexts(host), ActionTextIds);

    session.exec([&] {
        QVector<QWidget*> widgets;
        for (const QAction* action : host.toolBar()->actions())
            widgets.append(host.toolBar()->widgetForAction(const_cast<QAction*>(action)));
        QCOMPARE(widgets.size(), 7);
        QCOMPARE(widgets.at(5)->metaObject(), &QWidget::staticMetaObject);
        widgets.remove(5);
        for (int i = 0; i < widgets.size(); ++i) {
            const auto* button = qobject_cast<QToolButton*>(widgets.at(i));
            QVERIFY(button != nullptr);
            QCOMPARE(button->defaultAction(), host.action(AllActions.at(i)));
            QCOMPARE(button->toolButtonStyle(), Qt::ToolButtonTextUnderIcon);
            QVERIFY(button->isVisible());
            if (i > 0)
                QVERIFY(screenPlace(button).x() > screenPlace(widgets.at(i - 1)).x());
        }
        // All of Run is on the bar, apart from the rest.
        const QWidget* run = host.button(EditorHost::Run);
        QCOMPARE(run->mapTo(host.toolBar(), run->rect().bottomRight()).x(),
                 host.toolBar()->width() - 1);
        const auto distance = [&](EditorHost::Action left, EditorHost::Action right) {
            return screenPlace(host.button(right)).x() - screenPlace(host.button(left)).x();
        };
        QVERIFY(distance(EditorHost::Help, EditorHost::Run) >
                distance(EditorHost::Default, EditorHost::Help));
    });
}

void TestEditorWindow::runAloneIsCheckable()
{
    const EditorSession session;
    for (const EditorHost::Action action : AllActions) {
        QCOMPARE(session.host.action(action)->isCheckable(), action == EditorHost::Run);
        QCOMPARE(session.host.button(action)->isCheckable(), action == EditorHost::Run);
        QVERIFY(!session.host.action(action)->isChecked());
        QVERIFY(!session.host.button(action)->isChecked());
        QVERIFY(session.host.action(action)->isEnabled());
        QCOMPARE(session.host.action(action)->parent(), session.host.editor());
    }
}

void TestEditorWindow::iconsAreTheInstalledPictures()
{
    const EditorSession session;
    const QStringList pictures = {QStringLiteral("open"), QStringLiteral("close"),
                                  QStringLiteral("save"), QStringLiteral("default"),
                                  QStringLiteral("help"), QStringLiteral("run")};
    for (int i = 0; i < pictures.size(); ++i) {
        const QIcon icon = session.host.action(AllActions.at(i))->icon();
        const QImage normal = imageOf(pictures.at(i) + QLatin1String(".png"));
        QVERIFY(!normal.isNull());
        QCOMPARE(iconImage(icon, normal.size(), QIcon::Normal, QIcon::Off), normal);

        const bool hasDisabledPicture = i < 4;
        QCOMPARE(icon.availableSizes(QIcon::Disabled, QIcon::Off).isEmpty(), !hasDisabledPicture);
        if (hasDisabledPicture) {
            const QImage disabled = imageOf(pictures.at(i) + QLatin1String("_d.png"));
            QVERIFY(!disabled.isNull() && disabled != normal);
            QCOMPARE(iconImage(icon, disabled.size(), QIcon::Disabled, QIcon::Off), disabled);
        }
    }

    const QIcon run = session.host.action(EditorHost::Run)->icon();
    const QImage stop = imageOf(QStringLiteral("stop.png"));
    QCOMPARE(iconImage(run, stop.size(), QIcon::Normal, QIcon::On), stop);
    QVERIFY(stop != imageOf(QStringLiteral("run.png")));
}

void TestEditorWindow::editorWithoutPictures()
{
    QVERIFY(QDir(InstalledContent::AppFolder).removeRecursively());
    EditorSession session;
    session.exec([&] {
        QCOMPARE(actionTexts(session.host), ActionTextIds);
        QVERIFY(session.host.button(EditorHost::Run)->isVisible());
    });
    QVERIFY(EditorHost::record().warnings.isEmpty());
    QVERIFY(InstalledContent::install());
}

void TestEditorWindow::tableAtStart()
{
    const EditorSession session;
    const EditorHost& host = session.host;
    QCOMPARE(cornerText(host.table()), QStringLiteral("N"));
    QCOMPARE(host.table()->model()->columnCount(), 2);
    QCOMPARE(headerText(host.table(), 0), QStringLiteral("STR_ID_WIDTHS"));
    QCOMPARE(headerText(host.table(), 1), QStringLiteral("STR_ID_GAPS"));
    QCOMPARE(host.table()->model()->rowCount(), 2);
    for (const int row : {0, 1}) {
        QCOMPARE(host.cell(row, 0), QStringLiteral("2.000u"));
        QCOMPARE(host.cell(row, 1), QStringLiteral("10.000u"));
    }
}

void TestEditorWindow::scrollBarOnlyWhereRowsDoNotFit()
{
    EditorSession session;
    const EditorHost& host = session.host;
    session.exec([&] {
        const QScrollBar* bar = host.table()->verticalScrollBar();
        const int rowHeight = host.table()->rowHeight(0);
        const int fitting = host.table()->viewport()->height() / rowHeight;
        QVERIFY(fitting > 2);
        QVERIFY(!bar->isVisible());
        QVERIFY(!host.table()->horizontalScrollBar()->isVisible());

        host.enter(host.count(), QString::number(fitting));
        QCOMPARE(host.table()->model()->rowCount(), fitting);
        QVERIFY(!bar->isVisible());
        host.enter(host.count(), QString::number(fitting + 1));
        QVERIFY(bar->isVisible());
        QVERIFY(!host.table()->horizontalScrollBar()->isVisible());
    });
}

void TestEditorWindow::helpShowsThePage()
{
    QVERIFY(writeHelpPage("<html><body><p>How to pulse.</p></body></html>"));
    EditorSession session;
    session.exec([&] {
        FrontPanel::tap(session.host.button(EditorHost::Help));
        QCOMPARE(helpWindows().size(), 1);
        const QWidget* help = helpWindows().first();
        QVERIFY(help->isVisible() && help->isWindow());
        QVERIFY(help->parent() == nullptr);
        QVERIFY(help->testAttribute(Qt::WA_DeleteOnClose));
        QCOMPARE(help->windowModality(), Qt::NonModal);
        QCOMPARE(help->size(), QSize(680, 432));

        const auto* title = help->findChild<QLabel*>(QString(), Qt::FindDirectChildrenOnly);
        const auto* browser = help->findChild<QTextBrowser*>();
        const auto* button = help->findChild<QPushButton*>(QString(), Qt::FindDirectChildrenOnly);
        QCOMPARE(title->text(), QStringLiteral("Double Pulse Help"));
        QCOMPARE(browser->toPlainText(), QStringLiteral("How to pulse."));
        QCOMPARE(button->text(), QStringLiteral("ARBID_CLOSE"));
        QVERIFY(title->geometry().bottom() < browser->geometry().top());
        QVERIFY(browser->geometry().bottom() < button->geometry().top());
        QVERIFY(help->rect().contains(button->geometry()));
    });
    QVERIFY(LogCapture::messages().contains(
        QStringLiteral("debug: MultiPulseEditor::slt_HelpBtnClicked "
                       "\"/mnt/user-data/.app/libDoublePulsePluginPics/"
                       "DoublePulseHelpFile.html\"")));
}

void TestEditorWindow::helpDeletesItselfOnClose()
{
    EditorSession session;
    session.exec([&] {
        FrontPanel::tap(session.host.button(EditorHost::Help));
        const QPointer<QWidget> help = helpWindows().value(0);
        QVERIFY(help != nullptr);
        FrontPanel::tap(help->findChild<QPushButton*>(QString(), Qt::FindDirectChildrenOnly));
        QVERIFY(help.isNull());
        QVERIFY(helpWindows().isEmpty());
        QVERIFY(session.host.editor()->isVisible());

        FrontPanel::tap(session.host.button(EditorHost::Help));
        QCOMPARE(helpWindows().size(), 1);
    });
}

void TestEditorWindow::helpPressedAgain()
{
    QVERIFY(writeHelpPage("<p>First</p>"));
    EditorSession session;
    session.exec([&] {
        FrontPanel::tap(session.host.button(EditorHost::Help));
        const QPointer<QWidget> first = helpWindows().value(0);
        QVERIFY(writeHelpPage("<p>Second</p>"));
        FrontPanel::tap(session.host.button(EditorHost::Help));
        QCOMPARE(helpWindows().size(), 1);
        QVERIFY(first.isNull());
        const auto* browser = helpWindows().first()->findChild<QTextBrowser*>();
        QCOMPARE(browser->toPlainText(), QStringLiteral("Second"));
        QVERIFY(helpWindows().first()->isVisible());
    });
}

void TestEditorWindow::helpWithoutAPage()
{
    QFile::remove(InstalledContent::PictureFolder + QLatin1String("DoublePulseHelpFile.html"));
    EditorSession session;
    session.exec([&] {
        FrontPanel::tap(session.host.button(EditorHost::Help));
        QCOMPARE(helpWindows().size(), 1);
        QCOMPARE(helpWindows().first()->findChild<QTextBrowser*>()->toPlainText(), QString());
    });
    QVERIFY(EditorHost::record().warnings.isEmpty());
}

void TestEditorWindow::closeWhileStopped()
{
    EditorSession session;
    const KeyWitness keys(session.host.surface());
    bool closed = false;
    QCOMPARE(session.exec([&] {
        FrontPanel::tap(session.host.button(EditorHost::Close));
        closed = !session.host.editor()->isVisible();
    }),
             0);
    QVERIFY(closed);
    QVERIFY(keys.pressed.isEmpty() && keys.released.isEmpty());
}

// A run that got no further than its start leaves Close enabled.
void TestEditorWindow::closeWhileShownAsRunning()
{
    EditorSession session({}, "KVX7010C", EditorHost::WithoutSegment);
    const EditorHost& host = session.host;
    const KeyWitness keys(host.surface());
    session.exec([&] {
        FrontPanel::tap(host.button(EditorHost::Run));
        QVERIFY(host.button(EditorHost::Run)->isChecked());
        FrontPanel::tap(host.button(EditorHost::Close));
        QVERIFY(!host.button(EditorHost::Run)->isChecked());
        QVERIFY(host.editor()->isVisible());
        QVERIFY(keys.pressed.isEmpty());
        QCOMPARE(keys.released, QVector<int>{QT_KEY_HOME});
        QCOMPARE(keys.modifiers, Qt::KeyboardModifiers(Qt::KeypadModifier));

        FrontPanel::tap(host.button(EditorHost::Close));
        QVERIFY(!host.editor()->isVisible());
        QCOMPARE(keys.released.size(), 1);
    });
}

void TestEditorWindow::closeSlotWhileRunning()
{
    EditorSession session(InstrumentScript::run() + InstrumentScript::stop());
    const EditorHost& host = session.host;
    const KeyWitness keys(host.surface());
    session.exec([&] {
        FrontPanel::tap(host.button(EditorHost::Run));
        QVERIFY(host.action(EditorHost::Run)->isChecked());
        QVERIFY(session.server.received().contains("OUTP1 ON \n"));

        // The button is disabled meanwhile.
        FrontPanel::tap(host.button(EditorHost::Close));
        QVERIFY(host.action(EditorHost::Run)->isChecked());
        QVERIFY(host.editor()->isVisible());
        QVERIFY(keys.released.isEmpty());

        QVERIFY(QMetaObject::invokeMethod(host.editor(), "slt_closeBtnClicked"));
        QVERIFY(!host.action(EditorHost::Run)->isChecked());
        QVERIFY(session.server.received().endsWith("OUTP1 OFF \n*RST \n*IDN? \n"));
        FrontPanel::settle();
        QVERIFY(host.editor()->isVisible());
        QVERIFY(keys.pressed.isEmpty());
        QCOMPARE(keys.released, QVector<int>{QT_KEY_HOME});
        QCOMPARE(keys.modifiers, Qt::KeyboardModifiers(Qt::KeypadModifier));
    });
    QVERIFY(EditorHost::record().warnings.isEmpty());
}

void TestEditorWindow::closeWhileRunningWithoutAParent()
{
    const LogCapture log;
    const ScriptedServer server(InstrumentScript::reset());
    EditorHost host(EditorHost::WithoutSegment);
    host.exec([&] {
        QVERIFY(host.editor()->isWindow());
        host.action(EditorHost::Run)->trigger();
        QVERIFY(host.action(EditorHost::Run)->isChecked());
        host.action(EditorHost::Close)->trigger();
        FrontPanel::settle();
        QVERIFY(!host.action(EditorHost::Run)->isChecked());
        QVERIFY(host.editor()->isVisible());
    });
    // Without a parent it would stay for the next host.
    delete host.editor();
}

void TestEditorWindow::languageChange()
{
    EditorSession session;
    const EditorHost& host = session.host;
    session.exec([&] {
        const TestTranslator german(QStringLiteral("de:"));
        FrontPanel::settle();
        QCOMPARE(titleOf(host.count()), QStringLiteral("de:STR_ID_PULSES_NUMS"));
        QCOMPARE(titleOf(host.highLevel()), QStringLiteral("de:STR_ID_HIGH_LEVEL"));
        QCOMPARE(titleOf(host.slope()), QStringLiteral("de:DBID_TRIGGER_SLOPE"));
        QCOMPARE(titleOf(host.timer()), QStringLiteral("de:SEQID_TIMER"));
        QCOMPARE(unitOf(host.delay()), QStringLiteral("de:ARBID_UNIT_S"));
        QCOMPARE(choices(host.source()),
                 (QStringList{QStringLiteral("de:STR_ID_MANUAL"),
                              QStringLiteral("de:DBID_TRIGGER_SOURCE_EXTERNAL"),
                              QStringLiteral("de:SEQID_TIMER")}));
        QCOMPARE(choices(host.load()),
                 (QStringList{QStringLiteral("de:STR_ID_50"), QStringLiteral("de:STR_ID_HI_Z")}));
        QCOMPARE(headerText(host.table(), 0), QStringLiteral("de:STR_ID_WIDTHS"));
        QCOMPARE(headerText(host.table(), 1), QStringLiteral("de:STR_ID_GAPS"));

        QCOMPARE(actionTexts(host), ActionTextIds);
        for (const EditorHost::Action action : AllActions)
            QCOMPARE(host.button(action)->text(), ActionTextIds.at(action));
        QCOMPARE(label(host, "title")->text(), QStringLiteral("STR_ID_MULTIPLE_PULSES"));
    });
    // The catalogue has gone with its translator.
    FrontPanel::settle();
    QCOMPARE(titleOf(host.count()), QStringLiteral("STR_ID_PULSES_NUMS"));
}

QTEST_MAIN(TestEditorWindow)
#include "test_editorwindow.moc"
