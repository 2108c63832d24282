// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "multipulsebuilderplugin.h"

#include "cpluginsfiles.h"
#include "defaultsetup.h"
#include "devicetable.h"
#include "hostcallbacks.h"
#include "multipulseeditor.h"

#include <QCoreApplication>
#include <QDebug>
#include <QGlobalStatic>
#include <QPointer>

namespace {

void deleteEditor();

/// Owns the one editor. The host's parent widget may take it along before that, and so does the end
/// of the application, without which no widget can be deleted any more.
class EditorHolder
{
public:
    ~EditorHolder()
    {
        qRemovePostRoutine(&deleteEditor);
        remove();
    }

    MultiPulseEditor* editor()
    {
        if (m_editor == nullptr) {
            m_editor = new MultiPulseEditor(nullptr);
            qRemovePostRoutine(&deleteEditor);
            qAddPostRoutine(&deleteEditor);
        }
        return m_editor;
    }

    void remove() { delete m_editor; }

private:
    QPointer<MultiPulseEditor> m_editor;
};

Q_GLOBAL_STATIC(EditorHolder, g_MultiPulseEditor)

void deleteEditor()
{
    if (g_MultiPulseEditor.exists())
        g_MultiPulseEditor->remove();
}

template<typename Callback>
void keepOrReplace(Callback& stored, Callback offered)
{
    if (offered != nullptr)
        stored = offered;
}

} // namespace

MultiPulseBuilderPlugin::~MultiPulseBuilderPlugin() = default;

void MultiPulseBuilderPlugin::initCallbacks(STRUCT_SHARED_POINTERS sharedPointers)
{
    qWarning() << "MultiPulseBuilderPlugin::initCallbacks"
               << (sharedPointers.singleOpenFileViewFunc != nullptr)
               << (sharedPointers.saveFileViewFunc != nullptr)
               << (sharedPointers.criticalFunc != nullptr)
               << (sharedPointers.warningFunc != nullptr)
               << (sharedPointers.questionFunc != nullptr)
               << (sharedPointers.informationFunc != nullptr);

    keepOrReplace(g_criticalMessage, sharedPointers.criticalFunc);
    keepOrReplace(g_warningMessage, sharedPointers.warningFunc);
    keepOrReplace(g_questionMessage, sharedPointers.questionFunc);
    keepOrReplace(g_informationMessage, sharedPointers.informationFunc);
    keepOrReplace(g_saveFileView, sharedPointers.saveFileViewFunc);
    keepOrReplace(g_singleOpenFileView, sharedPointers.singleOpenFileViewFunc);
}

int MultiPulseBuilderPlugin::show(int x, int y, int width, int height, QWidget* parent,
                                  GetIdCallback idcallback)
{
    idcallback();
    initDeviceList();
    loadSetupFile(DefaultSetupPath, g_jsonDefaultSetupValues);
    setCurrent(this);

    MultiPulseEditor* editor = g_MultiPulseEditor->editor();
    if (editor->parentWidget() == nullptr && parent != nullptr)
        editor->setParent(parent);
    editor->setGeometry(x, y, width, height);
    return 0;
}

int MultiPulseBuilderPlugin::exec()
{
    return g_MultiPulseEditor->editor()->exec();
}

int MultiPulseBuilderPlugin::close()
{
    g_MultiPulseEditor->editor()->reject();
    return 0;
}

QWidget* MultiPulseBuilderPlugin::getWindow()
{
    if (g_MultiPulseEditor.isDestroyed() || QCoreApplication::instance() == nullptr)
        return nullptr;
    return g_MultiPulseEditor->editor();
}
