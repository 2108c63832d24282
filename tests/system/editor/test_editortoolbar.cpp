// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "editorparts.h"
#include "editorsession.h"

#include "frontpanelkeys.h"

#include <QAction>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QTextBrowser>
#include <QToolButton>

using namespace EditorParts;

namespace {

// The bar is laid out for the 640 by 480 that the window has before the host gives it a size.
const QString ToolBarStyleSheet = QStringLiteral(
    "QToolBar{border-radius:1px; background-color:#1E1E1E;spacing:-15.1px;}"
    "QToolButton{padding-top:4px; padding-bottom:4px; width:88.0px;height:88.0px;margin-left:1px; "
    "margin-right:1px; border:none;font-size:15px;color:#cabc9f;font-family:\"Noto Sans medium\";}"
    "QToolButton:pressed{background-color:#3478f7; color:#ffffff;}"
    "QToolButton:disabled{color:#3f3f3f;}");

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

/// The tool bar, and what its Help and Close do.
class TestEditorToolBar : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void toolBarPlaceAndLook();
    void actionsInOrder();
    void runAloneIsCheckable();
    void iconsAreTheInstalledPictures();
    void editorWithoutPictures();

    void helpShowsThePage();
    void helpDeletesItselfOnClose();
    void helpPressedAgain();
    void helpWithoutAPage();

    void closeWhileStopped();
    void closeWhileShownAsRunning();
    void closeSlotWhileRunning();
    void closeWhileRunningWithoutAParent();
};

void TestEditorToolBar::initTestCase()
{
    QVERIFY(InstalledContent::install());
}

void TestEditorToolBar::toolBarPlaceAndLook()
{
    const EditorSession session;
    const QToolBar* bar = session.host.toolBar();
    QCOMPARE(bar->parentWidget(), session.host.editor());
    QCOMPARE(bar->geometry(), QRect(0, 411, 640, 70));
    QCOMPARE(bar->iconSize(), QSize(42, 42));
    QCOMPARE(bar->toolButtonStyle(), Qt::ToolButtonTextUnderIcon);
    QCOMPARE(bar->styleSheet(), ToolBarStyleSheet);
}

void TestEditorToolBar::actionsInOrder()
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

void TestEditorToolBar::runAloneIsCheckable()
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

void TestEditorToolBar::iconsAreTheInstalledPictures()
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

void TestEditorToolBar::editorWithoutPictures()
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

void TestEditorToolBar::helpShowsThePage()
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

void TestEditorToolBar::helpDeletesItselfOnClose()
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

void TestEditorToolBar::helpPressedAgain()
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

void TestEditorToolBar::helpWithoutAPage()
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

void TestEditorToolBar::closeWhileStopped()
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
void TestEditorToolBar::closeWhileShownAsRunning()
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

void TestEditorToolBar::closeSlotWhileRunning()
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

void TestEditorToolBar::closeWhileRunningWithoutAParent()
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

QTEST_MAIN(TestEditorToolBar)
#include "test_editortoolbar.moc"
