// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "multipulsebuilderplugin.h"

#include "cpluginsfiles.h"
#include "devicetable.h"
#include "hostcallbacks.h"

#include <QDebug>

QJsonObject g_jsonDefaultSetupValues;

namespace {

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
    Q_UNUSED(x)
    Q_UNUSED(y)
    Q_UNUSED(width)
    Q_UNUSED(height)
    Q_UNUSED(parent)

    idcallback();
    initDeviceList();
    loadSetupFile(DefaultSetupPath, g_jsonDefaultSetupValues);
    setCurrent(this);
    return 0;
}

QWidget* MultiPulseBuilderPlugin::getWindow()
{
    return nullptr;
}
