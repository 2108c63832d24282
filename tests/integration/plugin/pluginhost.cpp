// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "pluginhost.h"

#include <QtGlobal>

CAppInterface* CAppInterface::current = nullptr;

namespace {

QStringList g_warnings;

// Numbers in the functions keep the compiler from folding equal ones into one.
template<int Number>
int openFile(QWidget*, QStringList, QString&, QString, const char*, int)
{
    return Number;
}

template<int Number>
int saveFile(QWidget*, QStringList, QString&, QString, const char*, int, QString)
{
    return Number;
}

template<int Number>
int message(QString)
{
    return Number;
}

template<int Number>
int warning(QString text)
{
    g_warnings.append(text);
    return Number;
}

} // namespace

QString PluginHost::pluginPath()
{
    return QString::fromLocal8Bit(qgetenv("MPB_LIB_DIR")) +
           QLatin1String("/libMultiPulseBuilder.so");
}

STRUCT_SHARED_POINTERS PluginHost::callbacks(int set)
{
    if (set == 0)
        return {openFile<1>, saveFile<2>, message<3>, warning<4>, message<5>, message<6>};
    return {openFile<11>, saveFile<12>, message<13>, warning<14>, message<15>, message<16>};
}

QStringList PluginHost::warnings()
{
    return g_warnings;
}

void PluginHost::clearWarnings()
{
    g_warnings.clear();
}
