// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include <QColor>
#include <QCommandLineParser>
#include <QCoreApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>

// Renders a vector picture to a PNG of the size that the picture itself gives, whatever the name of
// the output: some pictures are installed without an extension. Used by the build, and so does
// without the window system, which pictures without text need not.

namespace {

int fail(const QString& reason)
{
    std::fprintf(stderr, "svgrender: %s\n", qUtf8Printable(reason));
    return 1;
}

QImage render(QSvgRenderer& source, double scale)
{
    QImage image((QSizeF(source.defaultSize()) * scale).toSize(), QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    source.render(&painter);
    return image;
}

/// One colour instead of the picture's own, with their opacity: a disabled form of an icon.
void recolour(QImage& image, const QColor& ink)
{
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(image.rect(), ink);
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Renders an SVG picture to a PNG file."));
    parser.addHelpOption();
    const QCommandLineOption scale(QStringLiteral("scale"),
                                   QStringLiteral("Pixels of the result for each of the source."),
                                   QStringLiteral("factor"), QStringLiteral("1"));
    parser.addOption(scale);
    const QCommandLineOption ink(QStringLiteral("ink"),
                                 QStringLiteral("Colour to draw everything in, such as #3f3f3f."),
                                 QStringLiteral("colour"));
    parser.addOption(ink);
    parser.addPositionalArgument(QStringLiteral("source"), QStringLiteral("The SVG file."));
    parser.addPositionalArgument(QStringLiteral("target"), QStringLiteral("The PNG file."));
    parser.process(application);

    const QStringList files = parser.positionalArguments();
    const double factor = parser.value(scale).toDouble();
    if (files.size() != 2 || factor <= 0)
        parser.showHelp(2);
    QSvgRenderer source(files.at(0));
    if (!source.isValid() || source.defaultSize().isEmpty())
        return fail(files.at(0) + QStringLiteral(": not an SVG picture with a size"));
    const QColor inkColour(parser.value(ink));
    if (parser.isSet(ink) && !inkColour.isValid())
        return fail(parser.value(ink) + QStringLiteral(": not a colour"));
    QImage image = render(source, factor);
    if (inkColour.isValid())
        recolour(image, inkColour);
    if (!image.save(files.at(1), "PNG"))
        return fail(files.at(1) + QStringLiteral(": cannot be written"));
    return 0;
}
