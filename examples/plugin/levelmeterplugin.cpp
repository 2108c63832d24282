// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "levelmeterplugin.h"

#include "hostcallbacks.h"
#include "levelmeter.h"

namespace {

template<typename Callback>
void keepOrReplace(Callback& kept, Callback offered)
{
    if (offered != nullptr)
        kept = offered;
}

} // namespace

LevelMeterPlugin::~LevelMeterPlugin()
{
    delete m_window;
}

void LevelMeterPlugin::initCallbacks(STRUCT_SHARED_POINTERS sharedPointers)
{
    keepOrReplace(g_singleOpenFileView, sharedPointers.singleOpenFileViewFunc);
    keepOrReplace(g_saveFileView, sharedPointers.saveFileViewFunc);
    keepOrReplace(g_criticalMessage, sharedPointers.criticalFunc);
    keepOrReplace(g_warningMessage, sharedPointers.warningFunc);
    keepOrReplace(g_questionMessage, sharedPointers.questionFunc);
    keepOrReplace(g_informationMessage, sharedPointers.informationFunc);
}

int LevelMeterPlugin::show(int x, int y, int width, int height, QWidget* parent,
                           GetIdCallback idcallback)
{
    idcallback();
    setCurrent(this);
    if (m_window == nullptr)
        m_window = new LevelMeter(parent);
    m_window->setGeometry(x, y, width, height);
    return 0;
}

int LevelMeterPlugin::exec()
{
    return m_window == nullptr ? 0 : m_window->exec();
}

int LevelMeterPlugin::close()
{
    if (m_window != nullptr)
        m_window->reject();
    return 0;
}

QWidget* LevelMeterPlugin::getWindow()
{
    return m_window;
}
