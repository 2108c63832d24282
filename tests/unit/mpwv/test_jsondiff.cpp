// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "jsondiff.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QtTest>

class TestJsonDiff : public QObject
{
    Q_OBJECT

private slots:
    void compares_data();
    void compares();
};

void TestJsonDiff::compares_data()
{
    QTest::addColumn<QByteArray>("left");
    QTest::addColumn<QByteArray>("right");
    QTest::addColumn<QStringList>("lines");
    const auto row = [](const char* name, const char* left, const char* right,
                        const QStringList& lines) {
        QTest::newRow(name) << QByteArray(left) << QByteArray(right) << lines;
    };
    row("same", R"({"a":[1,{"b":2}]})", R"({"a":[1,{"b":2}]})", {});
    row("number", R"({"a":{"b":1}})", R"({"a":{"b":1.5}})", {QStringLiteral("a.b: 1 -> 1.5")});
    row("missing", R"({"a":1})", R"({"b":"x"})",
        {QStringLiteral("a: 1 -> -"), QStringLiteral("b: - -> \"x\"")});
    row("type", R"({"a":1})", R"({"a":[1]})", {QStringLiteral("a: 1 -> [1]")});
    row("null and missing", R"({"a":null})", R"({})", {QStringLiteral("a: null -> -")});
    row("longer array", R"({"a":[1]})", R"({"a":[2,3]})",
        {QStringLiteral("a[0]: 1 -> 2"), QStringLiteral("a[1]: - -> 3")});
    row("line feed", R"({"a\n":1})", R"({"a\n":"\n"})", {QStringLiteral("a\\u000a: 1 -> \"\\n\"")});
}

void TestJsonDiff::compares()
{
    QFETCH(QByteArray, left);
    QFETCH(QByteArray, right);
    QTEST(differingMembers(QJsonDocument::fromJson(left).object(),
                           QJsonDocument::fromJson(right).object()),
          "lines");
}

QTEST_APPLESS_MAIN(TestJsonDiff)
#include "test_jsondiff.moc"
