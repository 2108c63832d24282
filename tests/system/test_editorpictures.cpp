// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include <QColor>
#include <QDir>
#include <QHash>
#include <QImage>
#include <QtTest>

#include <algorithm>

namespace {

const QRgb FocusBlue = qRgb(52, 120, 247);
const QRgb White = qRgb(255, 255, 255);
const QRgb DisabledGrey = qRgb(0x3f, 0x3f, 0x3f);
const QSize IconSize(84, 84);

const char* const MarkedPictures[] = {"d_ampl", "d_high",   "d_offset", "d_low",   "d_delay",
                                      "d_w1",   "d_w2",     "d_g1",     "d_g2",    "m_ampl",
                                      "m_high", "m_offset", "m_low",    "m_delay", "m_w1",
                                      "m_w2",   "m_g1",     "m_wN",     "m_gN"};
const char* const UnmarkedPictures[] = {"d_", "m_"};
const char* const IconsWithDisabledForm[] = {"open", "close", "save", "default"};
const char* const IconsWithout[] = {"help", "run", "stop"};

template<typename Predicate>
QVector<QPoint> pixelsWhere(const QImage& picture, Predicate wanted)
{
    QVector<QPoint> found;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (wanted(QPoint(x, y)))
                found.append({x, y});
        }
    }
    return found;
}

QVector<QPoint> pixelsOf(const QImage& picture, QRgb colour)
{
    return pixelsWhere(picture,
                       [&](const QPoint& point) { return picture.pixel(point) == colour; });
}

/// The smallest rectangle round everything in the opaque focus blue: lines, arrows and tag.
QRect markOf(const QImage& picture)
{
    QRect mark;
    for (const QPoint& point : pixelsOf(picture, FocusBlue))
        mark |= QRect(point, QSize(1, 1));
    return mark;
}

int blueness(QRgb colour)
{
    return qBlue(colour) - qRed(colour);
}

/// Where pictures of one set differ although no mark is there: neither inside the mark's rectangle,
/// but for half a pixel's softness of its edges, nor under the blue tint.
QVector<QPoint> strayDifferences(const QImage& unmarked, const QImage& marked)
{
    const QRect mark = markOf(marked).adjusted(-1, -1, 1, 1);
    return pixelsWhere(marked, [&](const QPoint& point) {
        const QRgb before = unmarked.pixel(point);
        const QRgb after = marked.pixel(point);
        return before != after && !mark.contains(point) && blueness(after) <= blueness(before);
    });
}

QColor meanColour(const QImage& picture)
{
    qint64 red = 0;
    qint64 green = 0;
    qint64 blue = 0;
    const QVector<QPoint> painted = pixelsWhere(
        picture, [&](const QPoint& point) { return qAlpha(picture.pixel(point)) == 255; });
    for (const QPoint& point : painted) {
        const QRgb pixel = picture.pixel(point);
        red += qRed(pixel);
        green += qGreen(pixel);
        blue += qBlue(pixel);
    }
    const int count = std::max(painted.size(), 1);
    return QColor(static_cast<int>(red / count), static_cast<int>(green / count),
                  static_cast<int>(blue / count));
}

} // namespace

/// The installed pictures of the editor: the names that it asks for, and what they show.
class TestEditorPictures : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void thereAreTheseAndNoOthers();
    void pulseTrainFillsItsPlace_data();
    void pulseTrainFillsItsPlace();
    void unmarkedHasNoBlue_data();
    void unmarkedHasNoBlue();
    void onlyTheMarkIsDifferent_data();
    void onlyTheMarkIsDifferent();
    void everyPictureIsDifferent();
    void timeMarksAreInOrder_data();
    void timeMarksAreInOrder();
    void levelMarksAreInOrder_data();
    void levelMarksAreInOrder();
    void iconIsPaintedOnNothing_data();
    void iconIsPaintedOnNothing();
    void disabledIconIsTheIconInGrey_data();
    void disabledIconIsTheIconInGrey();
    void runIsGreenAndStopIsRed();

private:
    static QStringList pulseTrainNames();
    static QStringList iconNames();
    template<std::size_t Count>
    static void addRows(const char* const (&names)[Count]);
    QImage read(const QString& name) const;

    QDir m_folder;
    QSize m_trainSize;
};

void TestEditorPictures::initTestCase()
{
    m_folder.setPath(QString::fromLocal8Bit(qgetenv("MPB_APP_DIR")) +
                     QStringLiteral("/libDoublePulsePluginPics"));
    const QList<QByteArray> size = qgetenv("MPB_PULSE_TRAIN_SIZE").split('x');
    QCOMPARE(size.size(), 2);
    m_trainSize = QSize(size.at(0).toInt(), size.at(1).toInt());
    QVERIFY(!m_trainSize.isEmpty());
}

QStringList TestEditorPictures::pulseTrainNames()
{
    QStringList names;
    for (const char* name : MarkedPictures)
        names += QLatin1String(name);
    for (const char* name : UnmarkedPictures)
        names += QLatin1String(name);
    return names;
}

QStringList TestEditorPictures::iconNames()
{
    QStringList names;
    for (const char* name : IconsWithDisabledForm)
        names << QLatin1String(name) << QLatin1String(name) + QLatin1String("_d");
    for (const char* name : IconsWithout)
        names += QLatin1String(name);
    return names;
}

template<std::size_t Count>
void TestEditorPictures::addRows(const char* const (&names)[Count])
{
    QTest::addColumn<QString>("name");
    for (const char* name : names)
        QTest::newRow(name) << QString::fromLatin1(name);
}

QImage TestEditorPictures::read(const QString& name) const
{
    return QImage(m_folder.filePath(name + QLatin1String(".png")))
        .convertToFormat(QImage::Format_ARGB32);
}

void TestEditorPictures::thereAreTheseAndNoOthers()
{
    QStringList expected;
    for (const QString& name : pulseTrainNames() + iconNames())
        expected += name + QLatin1String(".png");
    expected.sort();
    QStringList found = m_folder.entryList({QStringLiteral("*.png")}, QDir::Files);
    // Those are the help page's, which has a test of its own.
    for (const QString& name : m_folder.entryList({QStringLiteral("help_*.png")}, QDir::Files))
        found.removeOne(name);
    found.sort();
    QCOMPARE(found, expected);
}

void TestEditorPictures::pulseTrainFillsItsPlace_data()
{
    QTest::addColumn<QString>("name");
    for (const QString& name : pulseTrainNames())
        QTest::newRow(qPrintable(name)) << name;
}

void TestEditorPictures::pulseTrainFillsItsPlace()
{
    QFETCH(QString, name);
    const QImage picture = read(name);
    QCOMPARE(picture.size(), m_trainSize);
    QCOMPARE(qAlpha(picture.pixel(0, 0)), 0);

    QRect train;
    for (const QPoint& point : pixelsOf(picture, White))
        train |= QRect(point, QSize(1, 1));
    QVERIFY(train.width() > 0.8 * m_trainSize.width());
    QVERIFY(train.height() > 0.4 * m_trainSize.height());
}

void TestEditorPictures::unmarkedHasNoBlue_data()
{
    addRows(UnmarkedPictures);
}

void TestEditorPictures::unmarkedHasNoBlue()
{
    QFETCH(QString, name);
    const QImage picture = read(name);
    QVERIFY(!pixelsOf(picture, White).isEmpty());
    const QVector<QPoint> blue = pixelsWhere(
        picture, [&](const QPoint& point) { return blueness(picture.pixel(point)) != 0; });
    QCOMPARE(blue, QVector<QPoint>());
}

void TestEditorPictures::onlyTheMarkIsDifferent_data()
{
    addRows(MarkedPictures);
}

void TestEditorPictures::onlyTheMarkIsDifferent()
{
    QFETCH(QString, name);
    const QImage marked = read(name);
    const QImage unmarked = read(name.left(2));
    QCOMPARE(marked.size(), unmarked.size());

    QVERIFY(pixelsOf(marked, FocusBlue).size() > 500);
    QCOMPARE(strayDifferences(unmarked, marked), QVector<QPoint>());
    for (const QPoint& point : pixelsOf(unmarked, White))
        QCOMPARE(marked.pixel(point), White);
}

void TestEditorPictures::everyPictureIsDifferent()
{
    QHash<QByteArray, QString> nameOfPixels;
    for (const QString& name : pulseTrainNames() + iconNames()) {
        const QImage picture = read(name);
        const QByteArray pixels(reinterpret_cast<const char*>(picture.constBits()),
                                static_cast<int>(picture.sizeInBytes()));
        QCOMPARE(nameOfPixels.value(pixels), QString());
        nameOfPixels.insert(pixels, name);
    }
}

void TestEditorPictures::timeMarksAreInOrder_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::newRow("two pulses")
        << QStringLiteral("d_delay d_w1 d_g1 d_w2 d_g2").split(QLatin1Char(' '));
    QTest::newRow("more")
        << QStringLiteral("m_delay m_w1 m_g1 m_w2 m_wN m_gN").split(QLatin1Char(' '));
}

void TestEditorPictures::timeMarksAreInOrder()
{
    QFETCH(QStringList, names);
    for (int i = 1; i < names.size(); ++i) {
        const QRect before = markOf(read(names.at(i - 1)));
        const QRect after = markOf(read(names.at(i)));
        // Neighbours share the line between them.
        QVERIFY2(before.right() <= after.left() + 1, qPrintable(names.at(i)));
        QCOMPARE(before.top(), after.top());
    }
}

void TestEditorPictures::levelMarksAreInOrder_data()
{
    QTest::addColumn<QString>("set");
    QTest::newRow("two pulses") << QStringLiteral("d_");
    QTest::newRow("more") << QStringLiteral("m_");
}

void TestEditorPictures::levelMarksAreInOrder()
{
    QFETCH(QString, set);
    const QRect high = markOf(read(set + QLatin1String("high")));
    const QRect low = markOf(read(set + QLatin1String("low")));
    const QRect amplitude = markOf(read(set + QLatin1String("ampl")));
    QVERIFY(high.bottom() <= low.top());
    QCOMPARE(amplitude.top(), high.top());
    // The tip of the arrow or the tag beside it, whichever is lower.
    QVERIFY(qAbs(amplitude.bottom() - low.bottom()) <= 2);
}

void TestEditorPictures::iconIsPaintedOnNothing_data()
{
    QTest::addColumn<QString>("name");
    for (const QString& name : iconNames())
        QTest::newRow(qPrintable(name)) << name;
}

void TestEditorPictures::iconIsPaintedOnNothing()
{
    QFETCH(QString, name);
    const QImage icon = read(name);
    QCOMPARE(icon.size(), IconSize);
    const int painted = pixelsWhere(icon, [&](const QPoint& point) {
                            return qAlpha(icon.pixel(point)) == 255;
                        }).size();
    const int all = IconSize.width() * IconSize.height();
    QVERIFY2(painted > all / 10 && painted < all / 2, qPrintable(QString::number(painted)));
    for (const QPoint& corner : {QPoint(0, 0), QPoint(83, 0), QPoint(0, 83), QPoint(83, 83)})
        QCOMPARE(qAlpha(icon.pixel(corner)), 0);
}

void TestEditorPictures::disabledIconIsTheIconInGrey_data()
{
    addRows(IconsWithDisabledForm);
}

void TestEditorPictures::disabledIconIsTheIconInGrey()
{
    QFETCH(QString, name);
    const QImage icon = read(name);
    const QImage disabled = read(name + QLatin1String("_d"));
    QCOMPARE(disabled.convertToFormat(QImage::Format_Alpha8),
             icon.convertToFormat(QImage::Format_Alpha8));
    const QVector<QPoint> painted =
        pixelsWhere(icon, [&](const QPoint& point) { return qAlpha(icon.pixel(point)) == 255; });
    QCOMPARE(pixelsOf(disabled, DisabledGrey), painted);
    QVERIFY(pixelsOf(icon, DisabledGrey).isEmpty());
}

void TestEditorPictures::runIsGreenAndStopIsRed()
{
    const QColor run = meanColour(read(QStringLiteral("run")));
    const QColor stop = meanColour(read(QStringLiteral("stop")));
    QVERIFY(run.green() > run.red() + 50 && run.green() > run.blue() + 50);
    QVERIFY(stop.red() > stop.green() + 50 && stop.red() > stop.blue() + 50);
}

QTEST_GUILESS_MAIN(TestEditorPictures)
#include "test_editorpictures.moc"
