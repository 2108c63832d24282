// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>
#include <QTranslator>

/// A catalogue that has every identifier: its text is a mark in front of the identifier. In force
/// while it lives.
class TestTranslator : public QTranslator
{
public:
    explicit TestTranslator(const QString& mark)
        : m_mark(mark)
    {
        QCoreApplication::installTranslator(this);
    }
    ~TestTranslator() override { QCoreApplication::removeTranslator(this); }
    TestTranslator(const TestTranslator&) = delete;
    TestTranslator& operator=(const TestTranslator&) = delete;

    QString translate(const char*, const char* textId, const char*, int) const override
    {
        return m_mark + QString::fromLatin1(textId);
    }
    bool isEmpty() const override { return false; }

private:
    QString m_mark;
};
