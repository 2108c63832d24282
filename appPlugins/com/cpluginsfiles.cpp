// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "cpluginsfiles.h"

#include <QDebug>
#include <QFile>
#include <QJsonDocument>

bool loadSetupFile(const char* fileName, QJsonObject& jsonObj)
{
    QFile file(QString::fromUtf8(fileName));
    if (!file.open(QIODevice::ReadOnly))
        return false;

    const QJsonDocument document = QJsonDocument::fromJson(file.readAll());
    if (!document.isObject() || document.object().isEmpty())
        return false;

    jsonObj = document.object();
    return true;
}

bool saveSetupFile(const char* fileName, const QJsonObject& jsonObj)
{
    QFile file(QString::fromUtf8(fileName));
    // Unbuffered, so that the write itself finds the disk full.
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        qWarning("Couldn't open save file.");
        return false;
    }

    return file.write(QJsonDocument(jsonObj).toJson()) != -1;
}
