// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "pulseplot.h"

#include "picturestyle.h"
#include "ranwith.h"

#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <QXmlStreamReader>

#include <algorithm>

namespace {

PulsePlot plotOf(const TestSetup& setup)
{
    expectHeaderWarning();
    OutputWaveform waveform;
    const QString reason = outputOfTrain(setup.train(), waveform);
    if (!reason.isEmpty())
        qFatal("%s", qPrintable(reason));
    return plotOfTrain(setup.train(), waveform, QStringLiteral("a <title> & more"));
}

TestSetup pulses(int count, const QString& width, const QString& gap)
{
    TestSetup setup;
    for (int i = 0; i < count; ++i)
        setup.rows.append({width, gap});
    return setup;
}

QStringList shown(const QVector<PlotMark>& marks)
{
    QStringList texts;
    for (const PlotMark& mark : marks)
        texts.append(QStringLiteral("%1%2: %3")
                         .arg(QStringLiteral("DPG").at(mark.kind))
                         .arg(mark.number)
                         .arg(mark.text));
    return texts;
}

// All texts of a picture, in the order in which they are drawn.
QStringList textsOf(const QByteArray& svg)
{
    QStringList texts;
    QXmlStreamReader reader(svg);
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::StartElement &&
            reader.name() == QLatin1String("text"))
            texts.append(reader.readElementText().trimmed());
    }
    if (reader.hasError())
        texts = QStringList(reader.errorString());
    return texts;
}

QImage imageOf(const PulsePlot& plot, const QSize& size)
{
    return QImage::fromData(renderPlot(plot, PictureFormat::Png, size), "PNG")
        .convertToFormat(QImage::Format_RGB32);
}

// Pixels of about this colour; thin lines are blended with the paper.
int pixelsLike(const QImage& image, const QColor& colour)
{
    const auto isNear = [&colour](QRgb pixel) {
        return qAbs(qRed(pixel) - colour.red()) + qAbs(qGreen(pixel) - colour.green()) +
                   qAbs(qBlue(pixel) - colour.blue()) <
               180;
    };
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        const void* const pixels = image.constScanLine(y); // aligned for its pixels
        const auto* line = static_cast<const QRgb*>(pixels);
        count += int(std::count_if(line, line + image.width(), isNear));
    }
    return count;
}

// Texts that leave the picture would leave ink at its rim.
bool hasWhiteRim(const QImage& image)
{
    const int right = image.width() - 1;
    const int bottom = image.height() - 1;
    const QRgb white = QColor(Qt::white).rgb();
    for (int x = 0; x <= right; ++x)
        if (image.pixel(x, 0) != white || image.pixel(x, bottom) != white)
            return false;
    for (int y = 0; y <= bottom; ++y)
        if (image.pixel(0, y) != white || image.pixel(right, y) != white)
            return false;
    return true;
}

} // namespace

class TestPulsePlot : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { silenceInformation(); }
    void marksOfTrain();
    void marksWithoutGap();
    void marksOfLostPulse();
    void marksOfWaveform();
    void marksInPoints();
    void marksOfNothing();
    void svg();
    void svgOfManyPulses();
    void tableThatDoesNotFit();
    void unequalWidths();
    void emptyTable();
    void zeroPeriod();
    void pictures_data();
    void pictures();
    void traceFollowsTheLevels();
    void sameEachTime();
};

void TestPulsePlot::marksOfTrain()
{
    TestSetup setup = TestSetup::doublePulse();
    setup.rows[1].first = QStringLiteral("1.111u");
    const PulsePlot plot = plotOf(setup);
    const QStringList expected = {QStringLiteral("D0: delay 10 µs"), QStringLiteral("P1: 2 µs"),
                                  QStringLiteral("G1: 10 µs"), QStringLiteral("P2: 1.111 µs"),
                                  QStringLiteral("G2: 10 µs")};
    QCOMPARE(shown(plot.marks), expected);
    QCOMPARE(plot.marks.at(1).from, 1e-5);
    QCOMPARE(plot.marks.at(1).to, 1.2e-5);
    QCOMPARE(plot.marks.last().to, setup.train().totalPeriod());
    QCOMPARE(plot.subtitle,
             QStringLiteral("2 pulses  ·  period 33.111 µs  ·  30.201 kHz  ·  131069 points  ·  "
                            "into 50 Ω"));
}

void TestPulsePlot::marksWithoutGap()
{
    const PulsePlot plot = plotOf(pulses(2, QStringLiteral("2.000u"), QStringLiteral("0.000u")));
    const QStringList expected = {QStringLiteral("D0: delay 10 µs"), QStringLiteral("P1: 2 µs"),
                                  QStringLiteral("P2: 2 µs")};
    QCOMPARE(shown(plot.marks), expected);
}

void TestPulsePlot::marksOfLostPulse()
{
    TestSetup setup = pulses(30, QStringLiteral("150.000u"), QStringLiteral("150.000u"));
    setup.rows[7].first = QStringLiteral("20.000n");
    const QStringList texts = shown(plotOf(setup).marks);
    QCOMPARE(texts.filter(QStringLiteral("P8:")),
             QStringList(QStringLiteral("P8: 20 ns (no point)")));
    QCOMPARE(texts.filter(QStringLiteral("no point")).size(), 1);
}

void TestPulsePlot::marksOfWaveform()
{
    OutputWaveform waveform;
    waveform.volts = {0, 1, 1, 0, 0, 0, 1, 0};
    waveform.setPeriod(8e-6);
    const PulsePlot plot = plotOfWaveform(waveform, QStringLiteral("t"));
    const QStringList expected = {QStringLiteral("D0: delay 1 µs"), QStringLiteral("P1: 2 µs"),
                                  QStringLiteral("G1: 3 µs"), QStringLiteral("P2: 1 µs"),
                                  QStringLiteral("G2: 1 µs")};
    QCOMPARE(shown(plot.marks), expected);
    QCOMPARE(plot.subtitle, QStringLiteral("2 pulses  ·  8 points  ·  period 8 µs"));
}

void TestPulsePlot::marksInPoints()
{
    OutputWaveform waveform;
    waveform.volts = {1, 1, 0, 1};
    const PulsePlot plot = plotOfWaveform(waveform, QStringLiteral("t"));
    QCOMPARE(plot.polarity, Polarity::Negative);
    const QStringList expected = {QStringLiteral("D0: delay 2"), QStringLiteral("P1: 1"),
                                  QStringLiteral("G1: 1")};
    QCOMPARE(shown(plot.marks), expected);
    QCOMPARE(plot.subtitle, QStringLiteral("1 pulse  ·  4 points"));
}

void TestPulsePlot::marksOfNothing()
{
    QVERIFY(plotOfWaveform({}, QStringLiteral("t")).marks.isEmpty());
    OutputWaveform constant;
    constant.volts = {1, 1};
    QVERIFY(plotOfWaveform(constant, QStringLiteral("t")).marks.isEmpty());
}

void TestPulsePlot::svg()
{
    TestSetup setup = TestSetup::doublePulse();
    setup.offset = 0.25;
    const QByteArray svg = renderPlot(plotOf(setup), PictureFormat::Svg, {900, 450});
    QVERIFY(QSvgRenderer(svg).isValid());
    QCOMPARE(QSvgRenderer(svg).defaultSize(), QSize(900, 450));
    const QStringList texts = textsOf(svg);
    for (const char* text : {"a <title> & more", "Time (µs)", "Voltage (V)", "delay 10 µs", "2 µs",
                             "10 µs", "1.25 V", "−0.75 V"})
        QVERIFY2(texts.contains(QString::fromUtf8(text)), text);
    QCOMPARE(texts.count(QStringLiteral("2 µs")), 2);
}

void TestPulsePlot::svgOfManyPulses()
{
    TestSetup setup = pulses(30, QStringLiteral("2.000u"), QStringLiteral("10.000u"));
    setup.rows[16] = {QStringLiteral("3.456u"), QStringLiteral("7.890u")};
    const QStringList texts = textsOf(renderPlot(plotOf(setup), PictureFormat::Svg, {1200, 600}));
    // Each number stands above its pulse and in the table; some are also numbers of an axis.
    for (int number = 1; number <= 30; ++number)
        QVERIFY2(texts.count(QString::number(number)) >= 2, qPrintable(QString::number(number)));
    QCOMPARE(texts.count(QStringLiteral("2 µs")), 29);
    QCOMPARE(texts.count(QStringLiteral("10 µs")), 29);
    const int row = texts.indexOf(QStringLiteral("3.456 µs"));
    QVERIFY(row > 0);
    QCOMPARE(texts.at(row - 1), QStringLiteral("17"));
    QCOMPARE(texts.value(row + 1), QStringLiteral("7.89 µs"));
}

void TestPulsePlot::tableThatDoesNotFit()
{
    const TestSetup setup = pulses(1000, QStringLiteral("1.000u"), QStringLiteral("2.000u"));
    const QStringList texts = textsOf(renderPlot(plotOf(setup), PictureFormat::Svg, {1200, 600}));
    const int listed = texts.count(QStringLiteral("1 µs"));
    QVERIFY(listed > 20 && listed < 1000);
    QVERIFY(texts.contains(QStringLiteral("%1 more").arg(1000 - listed)));
}

void TestPulsePlot::unequalWidths()
{
    TestSetup setup;
    setup.rows = {{QStringLiteral("20.000n"), QStringLiteral("10.000u")},
                  {QStringLiteral("150.000u"), QStringLiteral("10.000u")}};
    const QStringList texts = textsOf(renderPlot(plotOf(setup), PictureFormat::Svg, {1200, 600}));
    for (const char* text : {"20 ns", "150 µs", "10 µs"})
        QVERIFY2(texts.contains(QString::fromUtf8(text)), text);
    QVERIFY(!texts.contains(QStringLiteral("No.")));
}

void TestPulsePlot::emptyTable()
{
    const PulsePlot plot = plotOf(TestSetup());
    QVERIFY(plot.marks.isEmpty());
    const QImage image = imageOf(plot, {600, 300});
    // The constant line is there, nothing is filled below it.
    QVERIFY(pixelsLike(image, PictureStyle::Trace) > 100);
}

void TestPulsePlot::zeroPeriod()
{
    TestSetup setup;
    setup.delay = 0;
    const PulsePlot plot = plotOf(setup);
    QVERIFY(plot.subtitle.contains(QStringLiteral("inf Hz")));
    const QStringList texts = textsOf(renderPlot(plot, PictureFormat::Svg, {600, 300}));
    QVERIFY(texts.contains(QStringLiteral("no points: nothing is played")));
}

void TestPulsePlot::pictures_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QSize>("size");
    for (const char* kind : {"double", "thirty", "narrow", "inverted", "empty", "huge"})
        for (const QSize size : {QSize(200, 200), QSize(1200, 600), QSize(2000, 500)})
            QTest::addRow("%s %dx%d", kind, size.width(), size.height())
                << QString::fromUtf8(kind) << size;
}

void TestPulsePlot::pictures()
{
    QFETCH(QString, kind);
    QFETCH(QSize, size);
    TestSetup setup = TestSetup::doublePulse();
    if (kind == QLatin1String("thirty"))
        setup = pulses(30, QStringLiteral("2.345u"), QStringLiteral("100.123u"));
    else if (kind == QLatin1String("narrow"))
        setup = pulses(30, QStringLiteral("20.000n"), QStringLiteral("20.000n"));
    else if (kind == QLatin1String("empty"))
        setup = TestSetup();
    else if (kind == QLatin1String("huge"))
        setup = pulses(1000, QStringLiteral("1.000u"), QStringLiteral("1.000u"));
    setup.slope = kind == QLatin1String("inverted") ? 1 : 0;

    const QImage image = imageOf(plotOf(setup), size);
    QCOMPARE(image.size(), size);
    QVERIFY(hasWhiteRim(image));
    QVERIFY(pixelsLike(image, PictureStyle::Trace) > 20);
}

// A pulse that is high for a quarter of the time fills a quarter of what lies between the levels.
void TestPulsePlot::traceFollowsTheLevels()
{
    OutputWaveform waveform;
    waveform.volts.assign(1000, 0);
    std::fill_n(waveform.volts.begin() + 250, 250, 1);
    waveform.high = 1;
    const QImage image = imageOf(plotOfWaveform(waveform, QString()), {1200, 600});
    const QColor paper(Qt::white);
    const QColor& fill = PictureStyle::TraceFill;
    const double share = fill.alphaF();
    int filled = 0;
    int left = image.width();
    int right = 0;
    // A row between the grid lines, well inside the trace.
    const int y = image.height() * 45 / 100;
    const int expected = qRound(paper.red() * (1 - share) + fill.red() * share);
    for (int x = 0; x < image.width(); ++x) {
        if (qAbs(image.pixelColor(x, y).red() - expected) > 1)
            continue;
        ++filled;
        left = qMin(left, x);
        right = qMax(right, x);
    }
    QVERIFY(filled > 200 && filled < 290);
    QVERIFY(left > image.width() / 4 && right < image.width() * 55 / 100);
}

void TestPulsePlot::sameEachTime()
{
    const PulsePlot plot = plotOf(TestSetup::doublePulse());
    for (const PictureFormat format : {PictureFormat::Svg, PictureFormat::Png})
        QCOMPARE(renderPlot(plot, format, {600, 300}), renderPlot(plot, format, {600, 300}));
}

QTEST_MAIN(TestPulsePlot)
#include "test_pulseplot.moc"
