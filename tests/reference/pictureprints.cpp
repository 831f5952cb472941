// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
// Prints the checksums of pictures and charts of both generations, one on each line. The output of two builds of the
// library differs where their pictures differ. If a folder is passed as an argument, the pictures are written to it.
//
// Each version of Qt draws text differently. For a comparison use a font without visible glyphs, see blankfont.py.
#include <ceiechart/legacy/ceiegraphicsview.h>
#include <ceiechart/render/drawceipicture.h>
#include <ceiechart/widgets/ceiegraphicsview.h>
#include <reference/repeatableblending.h>
#include <reference/samplegamuts.h>

#include <QApplication>
#include <QCryptographicHash>
#include <QGraphicsView>

#include <cstdio>
#include <memory>

namespace {

QString folder;

void print(const QString &name, const QImage &picture)
{
    const QImage plain = picture.convertToFormat(QImage::Format_ARGB32);
    QCryptographicHash hash(QCryptographicHash::Sha1);
    for (int y = 0; y < plain.height(); ++y) {
        hash.addData(
            QByteArray::fromRawData(reinterpret_cast<const char *>(plain.constScanLine(y)), 4 * plain.width()));
    }
    std::printf("%s %dx%d %s\n", qPrintable(name), plain.width(), plain.height(), hash.result().toHex().constData());
    if (!folder.isEmpty()) {
        plain.save(folder + QLatin1Char('/') + name + QStringLiteral(".png"));
    }
}

template <typename Renderer>
void printPictures(const QString &name, Renderer &renderer, QSize size)
{
    for (const bool axes : {false, true}) {
        for (const bool layers : {false, true}) {
            const std::unique_ptr<QImage> picture(renderer.drawCEIPicture(
                size.width(), size.height(), axes, layers, layers, {QPointF(0.3, 0.3), QPointF(0.45, 0.41)}));
            print(QStringLiteral("%1-%2-%3%4").arg(name).arg(size.width()).arg(axes).arg(layers), *picture);
        }
    }
}

void printGamutForms(NewCEIE::DrawCEIPicture &renderer, QSize size, QRandomGenerator &random)
{
    for (int i = 0; i < 8; ++i) {
        QPolygonF clip;
        for (int corner = 0; corner < i; ++corner) {
            clip.append(reference::randomPoint(random, QRectF(QPointF(), size)));
        }
        const QList<ColorTriangleObject> gamuts = reference::randomGamuts(random);
        const QList<ColorTriangleObject> standards = reference::randomGamuts(random);
        const std::unique_ptr<QImage> picture(renderer.drawCEIPicture(
            size.width(), size.height(), i % 2 != 0, gamuts, standards, clip, i % 4 > 1, QString()));
        print(QStringLiteral("gamuts-%1-%2").arg(size.width()).arg(i), *picture);
    }
}

template <typename View>
void printChart(const QString &name, View &chart)
{
    auto *inner = chart.template findChild<QGraphicsView *>();
    for (const int side : {50, 320, 671}) {
        chart.setImageWidth(side);
        chart.setImageHeight(side + side / 9);
        chart.show();
        QApplication::processEvents();
        print(QStringLiteral("%1-%2").arg(name).arg(side), inner->grab().toImage());
    }
}

void printCharts()
{
    using Model::Target;
    const Model::Targets wall{Target::fromYxy(240, 0.700, 0.299), Target::fromYxy(634, 0.189, 0.718),
        Target::fromYxy(126, 0.133, 0.075), Target::fromYxy(1000, 0.2829, 0.2971)};
    NewCEIE::CEIEGraphicsView current(nullptr);
    current.setColorGamut(Model::dciP3D65(), Model::ColorGamut("wall", wall), {Model::rec709(), Model::rec2020()});
    printChart(QStringLiteral("current"), current);

    const Model::Targets p3 = Model::dciP3D65().getTargets();
    for (const DrawCEIPicture::CEIEType type : {DrawCEIPicture::XyDiagram, DrawCEIPicture::UvDiagram}) {
        CEIEGraphicsView legacy(nullptr, type);
        legacy.setColorGamut({p3.red, p3.green, p3.blue, p3.white}, {wall.red, wall.green, wall.blue, wall.white});
        legacy.setMeasureValuePoints({QPointF(0.31, 0.32), QPointF(0.5, 0.4)});
        printChart(QStringLiteral("legacy%1").arg(type), legacy);
    }
}

} // namespace

int main(int argc, char *argv[])
{
    reference::restartWithRepeatableBlending(argv);
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
    QApplication application(argc, argv);
    folder = QApplication::arguments().value(1);
    NewCEIE::DrawCEIPicture current(nullptr);
    DrawCEIPicture xy(DrawCEIPicture::XyDiagram, nullptr);
    DrawCEIPicture uv(DrawCEIPicture::UvDiagram, nullptr);
    QRandomGenerator random(1931);
    for (const QSize &size : {QSize(1, 1), QSize(50, 49), QSize(199, 320), QSize(800, 800), QSize(1300, 1410)}) {
        printPictures(QStringLiteral("current"), current, size);
        printPictures(QStringLiteral("xy"), xy, size);
        printPictures(QStringLiteral("uv"), uv, size);
        printGamutForms(current, size, random);
    }
    printCharts();
    return 0;
}
