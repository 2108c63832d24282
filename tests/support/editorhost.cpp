// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "editorhost.h"

#include "cstackedcombocomponents.h"

#include <QAction>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QListView>
#include <QToolBar>
#include <QToolButton>

using namespace appPlugins;

CAppInterface* CAppInterface::current = nullptr;

namespace {

const QSize ScreenSize(800, 480);

int browse(const HostRecord::Browse& call, QString& path)
{
    HostRecord& record = EditorHost::record();
    record.browses.append(call);
    if (record.browserResult == 1)
        path = record.browserPath;
    return record.browserResult;
}

int openBrowser(QWidget* parent, QStringList filters, QString& path, QString start,
                const char* titleId, int flag)
{
    return browse({false, parent, filters, path, start, titleId, flag, QString()}, path);
}

int saveBrowser(QWidget* parent, QStringList filters, QString& path, QString start,
                const char* titleId, int flag, QString name)
{
    return browse({true, parent, filters, path, start, titleId, flag, name}, path);
}

int critical(QString text)
{
    EditorHost::record().criticals.append(text);
    return 1;
}

int warning(QString text)
{
    EditorHost::record().warnings.append(text);
    if (EditorHost::record().whileWarning)
        EditorHost::record().whileWarning();
    return 1;
}

int question(QString text)
{
    EditorHost::record().questions.append(text);
    return EditorHost::record().questionResult;
}

int information(QString text)
{
    EditorHost::record().informations.append(text);
    return 1;
}

} // namespace

HostRecord& EditorHost::record()
{
    static HostRecord record;
    return record;
}

EditorHost::EditorHost(Segment segment)
    : m_segment(QLatin1String(KVXSharedMemory::Key))
    , m_surface(new QWidget)
    , m_loader(qEnvironmentVariable("MPB_LIB_DIR") + QLatin1String("/libMultiPulseBuilder.so"))
{
    record() = HostRecord();
    if (segment == WithSegment) {
        if (!m_segment.create(64))
            qFatal("segment: %s", qPrintable(m_segment.errorString()));
        flags()->InitAll();
    }
    m_surface->setGeometry(QRect(QPoint(), ScreenSize));
    m_surface->setFocusPolicy(Qt::StrongFocus);
    m_surface->show();
    if (!QTest::qWaitForWindowActive(m_surface.get()))
        qFatal("no window");

    m_plugin = qobject_cast<CAppInterface*>(m_loader.instance());
    if (m_plugin == nullptr)
        qFatal("plug-in: %s", qPrintable(m_loader.errorString()));
    m_plugin->initCallbacks({openBrowser, saveBrowser, critical, warning, question, information});
}

EditorHost::~EditorHost()
{
    FrontPanel::settle();
    m_loader.unload();
    CAppInterface::current = nullptr;
}

void EditorHost::show()
{
    m_plugin->show(0, 0, ScreenSize.width(), ScreenSize.height(), m_surface.get(), [] {});
}

int EditorHost::exec(const std::function<void()>& inside)
{
    QTimer::singleShot(0, editor(), [this, inside] {
        FrontPanel::settle();
        inside();
        if (editor()->isVisible())
            editor()->reject();
    });
    return m_plugin->exec();
}

QDialog* EditorHost::editor() const
{
    return qobject_cast<QDialog*>(m_plugin->getWindow());
}

IntegerCombComponent* EditorHost::count() const
{
    return editor()->findChild<IntegerCombComponent*>();
}

RealCombComponent* EditorHost::highLevel() const
{
    return editor()->findChild<RealCombComponent*>(QStringLiteral("HighLevel"));
}

RealCombComponent* EditorHost::lowLevel() const
{
    return editor()->findChild<RealCombComponent*>(QStringLiteral("LowLevel"));
}

RealCombComponent* EditorHost::delay() const
{
    return editor()->findChild<RealCombComponent*>(QStringLiteral("TriggerDelay"));
}

// The one number in the stack of the trigger's parameters.
RealCombComponent* EditorHost::timer() const
{
    return editor()->findChild<CStackedComboComponents*>()->findChild<RealCombComponent*>();
}

ComboBoxCombComponent* EditorHost::source() const
{
    return editor()->findChildren<ComboBoxCombComponent*>().value(0);
}

ComboBoxCombComponent* EditorHost::slope() const
{
    return editor()->findChildren<ComboBoxCombComponent*>().value(1);
}

ComboBoxCombComponent* EditorHost::load() const
{
    return editor()->findChildren<ComboBoxCombComponent*>().value(2);
}

QTableView* EditorHost::table() const
{
    return editor()->findChild<QTableView*>();
}

QLabel* EditorHost::thumbnail() const
{
    return editor()->findChild<QLabel*>(QStringLiteral("multipulse thumbnail"));
}

QToolBar* EditorHost::toolBar() const
{
    return editor()->findChild<QToolBar*>();
}

QAction* EditorHost::action(Action which) const
{
    return editor()
        ->findChildren<QAction*>(QString(), Qt::FindDirectChildrenOnly)
        .value(static_cast<int>(which));
}

QToolButton* EditorHost::button(Action which) const
{
    const QAction* wanted = action(which);
    for (QToolButton* button : toolBar()->findChildren<QToolButton*>()) {
        if (button->defaultAction() == wanted)
            return button;
    }
    return nullptr;
}

QString EditorHost::cell(int row, int column) const
{
    return table()->model()->index(row, column).data().toString();
}

void EditorHost::tapCell(int row, int column) const
{
    const QModelIndex index = table()->model()->index(row, column);
    table()->scrollTo(index);
    FrontPanel::tap(table()->viewport(), table()->visualRect(index).center());
}

void EditorHost::enter(QWidget* component, const QString& number, int confirm) const
{
    FrontPanel::tap(component->focusProxy());
    FrontPanel::type(number);
    FrontPanel::press(confirm);
}

void EditorHost::choose(ComboBoxCombComponent* component, int index) const
{
    auto* box = component->findChild<QComboBox*>();
    FrontPanel::tap(box);
    const QAbstractItemView* list = box->view();
    FrontPanel::tap(list->viewport(), list->visualRect(list->model()->index(index, 0)).center());
}

KVXSharedMemory* EditorHost::flags() const
{
    return static_cast<KVXSharedMemory*>(const_cast<void*>(m_segment.constData()));
}

bool EditorHost::discardKeys() const
{
    return flags()->GetDiscardKeys();
}

bool EditorHost::blockScpi() const
{
    return flags()->GetBlockSCPI();
}

void EditorHost::setDiscardKeys(bool discard)
{
    flags()->SetDiscardKeys(discard);
}
