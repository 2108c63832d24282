// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "keyboardlayout.h"

#include "frontpanelkeys.h"

#include <QRect>
#include <QtTest>

using namespace HostDialogs;

namespace {

KeyboardLayout layoutOf(const QString& name)
{
    if (name == QLatin1String("symbols"))
        return symbolLayout();
    if (name == QLatin1String("number"))
        return numberLayout(false);
    if (name == QLatin1String("number with units"))
        return numberLayout(true);
    return letterLayout(name == QLatin1String("German") ? QLocale::German : QLocale::English);
}

QString typed(const KeyboardLayout& layout)
{
    QString text;
    for (const KeySpec& key : layout.keys) {
        if (key.action == KeySpec::Character)
            text += key.text;
    }
    return text;
}

QVector<int> codes(const KeyboardLayout& layout)
{
    QVector<int> list;
    for (const KeySpec& key : layout.keys)
        list.append(key.code);
    return list;
}

} // namespace

class TestKeyboardLayout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keysLieBesideEachOther_data();
    void keysLieBesideEachOther();
    void everyAsciiCharacterCanBeTyped();
    void germanHasItsLetters();
    void unitKeysAreTheFrontPanels();
    void keysHaveACaptionOrAName_data();
    void keysHaveACaptionOrAName();
};

void TestKeyboardLayout::keysLieBesideEachOther_data()
{
    QTest::addColumn<QString>("name");
    for (const char* name : {"English", "German", "symbols", "number", "number with units"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void TestKeyboardLayout::keysLieBesideEachOther()
{
    QFETCH(QString, name);
    const KeyboardLayout layout = layoutOf(name);
    const QRect all(0, 0, layout.columns, layout.rows);
    QVector<QRect> places;
    for (const KeySpec& key : layout.keys) {
        const QRect place(key.column, key.row, key.columns, 1);
        QVERIFY(all.contains(place));
        QVERIFY(key.columns >= 2);
        for (const QRect& other : places)
            QVERIFY2(!other.intersects(place), qPrintable(key.text));
        places.append(place);
    }
}

void TestKeyboardLayout::everyAsciiCharacterCanBeTyped()
{
    const QString all = typed(letterLayout(QLocale::English)) + typed(symbolLayout());
    for (char16_t code = ' '; code < 0x7f; ++code) {
        const QChar character(code);
        QVERIFY2(all.contains(character.toLower()), qPrintable(QString(character)));
    }
}

void TestKeyboardLayout::germanHasItsLetters()
{
    const QString german = typed(letterLayout(QLocale::German));
    for (const QChar& letter : QStringLiteral("äöüßqwertz0123456789-_. "))
        QVERIFY2(german.contains(letter), qPrintable(QString(letter)));
    QVERIFY(!typed(letterLayout(QLocale::Japanese)).contains(QChar(0xe4)));
}

void TestKeyboardLayout::unitKeysAreTheFrontPanels()
{
    const QVector<int> keys = codes(numberLayout(true));
    for (int code : {int(QT_KEY_GN), int(QT_KEY_MU), int(QT_KEY_KM), int(QT_KEY_X1),
                     int(QT_KEY_MINUS), int(Qt::Key_Up), int(Qt::Key_Down), int(Qt::Key_Left),
                     int(Qt::Key_Right), int(Qt::Key_Backspace), int(Qt::Key_Return),
                     int(Qt::Key_Cancel), int(Qt::Key_Period), int(Qt::Key_0), int(Qt::Key_9)})
        QCOMPARE(keys.count(code), 1);
    const QVector<int> plain = codes(numberLayout(false));
    for (int code :
         {int(QT_KEY_GN), int(QT_KEY_MU), int(QT_KEY_KM), int(QT_KEY_X1), int(QT_KEY_MINUS)})
        QVERIFY(!plain.contains(code));
    QVERIFY(plain.contains(Qt::Key_Minus));
}

void TestKeyboardLayout::keysHaveACaptionOrAName_data()
{
    keysLieBesideEachOther_data();
}

void TestKeyboardLayout::keysHaveACaptionOrAName()
{
    QFETCH(QString, name);
    for (const KeySpec& key : layoutOf(name).keys)
        QCOMPARE(key.glyph == Glyph::None, key.nameId == nullptr);
}

QTEST_GUILESS_MAIN(TestKeyboardLayout)

#include "test_keyboardlayout.moc"
