// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "devicetable.h"

#include "hostcallbacks.h"
#include "instrumentlink.h"

#include <QDebug>
#include <QVector>

QStringList g_currentDeviceType;

namespace {

const int DefaultRow = 4;
const int ModelTextLength = 8;

QVector<QStringList> s_DeviceList;

QStringList deviceRow(const char* name, const char* maxAmplitude, const char* plus,
                      const char* minus, const char* samplingRate)
{
    const QString rate = QLatin1String(samplingRate);
    const QString length = QStringLiteral("1048576");
    const QString two = QStringLiteral("2");
    return {QLatin1String(name),
            QLatin1String(maxAmplitude),
            QStringLiteral("0.001"),
            QLatin1String(plus),
            QLatin1String(minus),
            rate,
            rate,
            length,
            length,
            two,
            two};
}

// The top family is told by six characters, the others by seven; its test comes first.
struct ModelPrefix
{
    const char* prefix;
    int row;
};
const ModelPrefix ModelPrefixes[] = {
    {"KVX705", 0}, {"KVX7020", 3}, {"KVX7030", 2}, {"KVX7040", 1}, {"KVX7010", 4}};

} // namespace

QVector<QStringList> deviceFamilies()
{
    return {deviceRow("KVX705XX", "5", "2.5", "-2.5", "2000000000"),
            deviceRow("KVX7040X", "5", "2.5", "-2.5", "2000000000"),
            deviceRow("KVX7030X", "10", "5", "-5", "1000000000"),
            deviceRow("KVX7020X", "10", "5", "-5", "1000000000"),
            deviceRow("KVX7010X", "10", "5", "-5", "250000000")};
}

QByteArray modelText(const QByteArray& reply)
{
    const int position = reply.indexOf("KVX");
    if (position < 0)
        return reply.left(ModelTextLength - 1);
    return reply.mid(position, ModelTextLength);
}

int deviceRowIndex(const QByteArray& model)
{
    for (const ModelPrefix& known : ModelPrefixes) {
        if (model.startsWith(known.prefix))
            return known.row;
    }
    return DefaultRow;
}

int deviceListSize()
{
    return s_DeviceList.size();
}

void initDeviceList()
{
    s_DeviceList += deviceFamilies();
    getCurrentDeviceType();
}

void getCurrentDeviceType()
{
    g_currentDeviceType = s_DeviceList.at(DefaultRow);

    InstrumentLink link;
    if (!link.connectToInstrument()) {
        // Closing a socket forgets why it failed.
        const QString warning = link.connectWarning();
        link.close();
        g_warningMessage(warning);
        return;
    }
    if (!link.send("*IDN?\n")) {
        link.close();
        return;
    }

    const QByteArray reply = link.waitForReply();
    if (!reply.isEmpty()) {
        const QByteArray model = modelText(reply);
        qWarning() << "device type" << model;
        g_currentDeviceType = s_DeviceList.at(deviceRowIndex(model));
        g_currentDeviceType[DeviceName] = QString::fromUtf8(model.constData());
    }
    link.close();
    qWarning() << "g_currentDeviceType" << g_currentDeviceType;
}
