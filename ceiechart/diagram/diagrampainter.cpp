// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/diagramcolors_p.h>
#include <ceiechart/diagram/diagramgamuts_p.h>
#include <ceiechart/diagram/diagrampainter.h>
#include <ceiechart/diagram/diagramsheet_p.h>
#include <ceiechart/diagram/pixelpainter_p.h>
#include <ceiechart/diagram/polylines_p.h>
#include <ceiechart/diagram/shownmarks_p.h>
#include <ceiechart/diagram/shownoutlines_p.h>

#include <QGuiApplication>
#include <QPaintEngine>
#include <QPainter>
#include <QScreen>

#include <algorithm>
#include <cmath>
#include <optional>

namespace ceiechart {

namespace {

constexpr double logicalPixelsPerInch = 96.0;
constexpr double pointsPerInch = 72.0;
constexpr double dashesOfKey = 32.0; // logical pixels, at most: enough for any dash pattern to be known by
constexpr double longestSide = 32768.0; // logical pixels to lay out: on a coarse device there is no more to be seen
constexpr int ringCorners = 720;

double screenDotsPerInch()
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    return screen ? screen->logicalDotsPerInchY() : logicalPixelsPerInch;
}

/*!
 * Fonts that are sized in pixels do not grow with the resolution of a device, and coloured edges of glyphs look one way
 * on an opaque picture and another way on a layer over it.
 */
QFont fontForDiagrams(QFont font)
{
    font.setStyleStrategy(QFont::StyleStrategy(font.styleStrategy() | QFont::NoSubpixelAntialias));
    if (font.pointSizeF() <= 0.0) {
        font.setPointSizeF(font.pixelSize() * pointsPerInch / screenDotsPerInch());
    }
    return font;
}

//! Whether \a a and \a b share their lists of marks, as copies do, and show the same of them.
bool hasMarksOf(const DiagramContent &a, const DiagramContent &b)
{
    const auto areShared = [](const QVector<DiagramMark> &some, const QVector<DiagramMark> &others) {
        return some.size() == others.size() && some.constData() == others.constData();
    };
    return a.layers == b.layers && areShared(a.measurePoints, b.measurePoints)
        && areShared(a.colorTemperaturePoints, b.colorTemperaturePoints) && areShared(a.cmyPoints, b.cmyPoints);
}

bool haveSameRoles(const DiagramContent &a, const DiagramContent &b)
{
    return std::equal(a.gamuts.cbegin(), a.gamuts.cend(), b.gamuts.cbegin(), b.gamuts.cend(),
        [](const DiagramGamut &one, const DiagramGamut &other) { return one.role == other.role; });
}

} // namespace

class DiagramPainter::Private {
public:
    DiagramContent content;
    DiagramViewport viewport;
    QFont font = fontForDiagrams(QFont());
    DiagramColors colors;

    // What has been laid out for the screen; gone when something changes on which it depends.
    std::optional<DiagramFonts> fonts;
    std::optional<DiagramStep> scale;
    std::optional<ShownMarks> marks;
    std::optional<ShownOutlines> outlines; // but for targets
    std::optional<DiagramStep> gamuts;
    std::optional<DiagramStep> edited;

    const DiagramFonts &screenFonts()
    {
        if (!fonts) {
            fonts.emplace(font, nullptr, 1.0);
        }
        return *fonts;
    }

    DiagramSheet sheet() { return {content, viewport, screenFonts()}; }

    const DiagramStep &scaleLayout()
    {
        if (!scale) {
            scale = scaleStep(sheet());
        }
        return *scale;
    }

    const ShownMarks &marksLayout()
    {
        if (!marks) {
            marks = shownMarks(sheet());
        }
        return *marks;
    }

    const ShownOutlines &outlinesLayout()
    {
        if (!outlines) {
            outlines = shownOutlines(sheet());
        }
        return *outlines;
    }

    const DiagramStep &gamutsLayout()
    {
        if (!gamuts) {
            gamuts = gamutsStep(sheet(), outlinesLayout(), marksLayout());
        }
        return *gamuts;
    }

    const DiagramStep &editedLayout()
    {
        if (!edited) {
            edited = editedStep(sheet(), scaleLayout(), outlinesLayout(), marksLayout());
        }
        return *edited;
    }

    void forgetLayout()
    {
        scale.reset();
        marks.reset();
        outlines.reset();
        gamuts.reset();
        edited.reset();
    }

    //! Paints the colours and keeps nothing.
    static void paintNewColors(QPainter *painter, const DiagramSheet &sheet)
    {
        const auto pixels = PixelPainter::on(*painter);
        if (pixels && DiagramColors::write(*pixels, colorsRequest(sheet.content, sheet.viewport, pixels->scale()))) {
            return;
        }
        const QRectF whole(QPointF(), sheet.viewport.size());
        const bool isPicture = painter->paintEngine()->type() == QPaintEngine::Raster;
        const double ratio = isPicture ? std::fabs(painter->deviceTransform().m22()) : pictureRatioOfFiles;
        const double most = std::sqrt(mostPicturePixels / std::max(1.0, whole.width() * whole.height()));
        DiagramColors colors;
        painter->drawImage(whole,
            colors.update(colorsRequest(sheet.content, sheet.viewport, std::min(ratio, most)), nullptr, nullptr));
    }

    static ColorsRequest colorsRequest(const DiagramContent &content, const DiagramViewport &viewport, double ratio)
    {
        ColorsRequest request;
        request.viewport = viewport;
        request.devicePixelRatio = ratio;
        request.colors = content.layers.testFlag(DiagramLayer::Colors) ? content.colors : HorseshoeColors::None;
        request.ground = diagramPalette(content.ground).ground;
        request.full = commonArea(content, viewport.diagram());
        return request;
    }
};

DiagramPainter::DiagramPainter()
    : d(std::make_unique<Private>())
{
}

DiagramPainter::~DiagramPainter() = default;

const DiagramContent &DiagramPainter::content() const
{
    return d->content;
}

void DiagramPainter::setContent(const DiagramContent &content)
{
    const auto scaleLayers = [](const DiagramContent &which) {
        return which.layers
            & (DiagramLayer::Colors | DiagramLayer::Locus | DiagramLayer::Wavelengths | DiagramLayer::PlanckianLocus
                | DiagramLayer::Isotherms | DiagramLayer::Axes | DiagramLayer::Grid);
    };
    if (content.ground != d->content.ground || content.colors != d->content.colors
        || scaleLayers(content) != scaleLayers(d->content)) {
        d->scale.reset();
    }
    if (!hasMarksOf(d->content, content)) {
        d->marks.reset();
    }
    if (!sameButForEdits(d->content, content)) {
        d->gamuts.reset();
        d->outlines.reset();
    } else if (!haveSameRoles(d->content, content)) {
        d->outlines.reset(); // the others are at other places in the list
    }
    d->edited.reset();
    d->content = content;
}

const DiagramViewport &DiagramPainter::viewport() const
{
    return d->viewport;
}

void DiagramPainter::setViewport(const DiagramViewport &viewport)
{
    if (viewport != d->viewport) {
        d->viewport = viewport;
        d->forgetLayout();
    }
}

QFont DiagramPainter::font() const
{
    return d->font;
}

void DiagramPainter::setFont(const QFont &font)
{
    d->font = fontForDiagrams(font);
    d->fonts.reset();
    d->forgetLayout();
}

QMarginsF DiagramPainter::margins(const QPaintDevice *device) const
{
    return device ? diagramMargins(d->content, DiagramFonts(d->font, device, 1.0))
                  : diagramMargins(d->content, d->screenFonts());
}

void DiagramPainter::paint(QPainter *painter, const QRectF &place) const
{
    const QPaintDevice *device = painter->device();
    const double unit = device->logicalDpiY() / logicalPixelsPerInch;
    const DiagramFonts fonts(d->font, device, unit);
    const double longest = std::max(place.width(), place.height()) / unit;
    if (!std::isfinite(longest) || !(place.width() > 0.0) || !(place.height() > 0.0)) {
        return;
    }
    const double enlargement = std::max(1.0, longest / longestSide);
    const DiagramViewport viewport
        = d->viewport.withMargins(diagramMargins(d->content, fonts)).resized(place.size() / (unit * enlargement));
    const DiagramSheet sheet{d->content, viewport, fonts};

    painter->save();
    painter->setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform
        | QPainter::LosslessImageRendering);
    painter->translate(place.topLeft());
    painter->scale(unit * enlargement, unit * enlargement);
    const QRectF whole(QPointF(), viewport.size());
    if (sheet.colors() == HorseshoeColors::None) {
        painter->fillRect(whole, sheet.palette().ground);
    } else {
        Private::paintNewColors(painter, sheet);
    }
    const DiagramStep scale = scaleStep(sheet);
    const ShownMarks marks = shownMarks(sheet);
    const ShownOutlines outlines = shownOutlines(sheet);
    const DiagramStep gamuts = gamutsStep(sheet, outlines, marks);
    const DiagramStep edited = editedStep(sheet, scale, outlines, marks);
    scale.drawing.paint(painter);
    gamuts.drawing.paint(painter);
    edited.drawing.paint(painter);
    edited.texts.paint(painter);
    painter->restore();
}

const QImage &DiagramPainter::colors(qreal devicePixelRatio, QRegion *changed, QPoint *scrolled)
{
    return d->colors.update(Private::colorsRequest(d->content, d->viewport, devicePixelRatio), changed, scrolled);
}

void DiagramPainter::paintColors(QPainter *painter, qreal devicePixelRatio)
{
    d->colors.paint(painter, Private::colorsRequest(d->content, d->viewport, devicePixelRatio));
}

void DiagramPainter::paintScale(QPainter *painter) const
{
    d->scaleLayout().drawing.paint(painter);
}

void DiagramPainter::paintGamuts(QPainter *painter) const
{
    d->gamutsLayout().drawing.paint(painter);
}

void DiagramPainter::paintEdited(QPainter *painter, const QRegion &needed) const
{
    d->editedLayout().drawing.paint(painter, needed);
    d->editedLayout().texts.paint(painter, needed);
}

QVector<DiagramLabel> DiagramPainter::labels() const
{
    return d->editedLayout().places.labels();
}

QRectF DiagramPainter::freePlace(
    const QSizeF &size, const QPointF &at, double distance, const QVector<QRectF> &avoid) const
{
    const QRectF plot = d->viewport.plot();
    const QVector<DiagramLabel> &labels = d->editedLayout().places.labels();
    QRectF best;
    int least = std::numeric_limits<int>::max();
    // To the upper right first, as a hand on the pointer covers what is below.
    for (const QPointF &way : {QPointF(1.0, -1.0), QPointF(-1.0, -1.0), QPointF(1.0, 1.0), QPointF(-1.0, 1.0),
             QPointF(0.0, -1.0), QPointF(1.0, 0.0), QPointF(-1.0, 0.0), QPointF(0.0, 1.0)}) {
        const double step = way.x() != 0.0 && way.y() != 0.0 ? distance * M_SQRT1_2 : distance;
        QRectF place(QPointF(), size);
        place.moveCenter(at + QPointF(way.x() * (step + size.width() / 2.0), way.y() * (step + size.height() / 2.0)));
        const auto isCovered = [&place](const QRectF &other) { return overlap(other, place); };
        if (!plot.contains(place) || std::any_of(avoid.cbegin(), avoid.cend(), isCovered)) {
            continue;
        }
        const auto count = int(std::count_if(labels.cbegin(), labels.cend(),
            [&place](const DiagramLabel &label) { return overlap(label.place, place); }));
        if (count < least) {
            least = count;
            best = place;
        }
    }
    return best;
}

QPolygonF DiagramPainter::outline(int index) const
{
    if (index < 0 || index >= d->content.gamuts.size()) {
        return QPolygonF();
    }
    const QPolygonF corners = d->viewport.outline(d->content.gamuts.at(index).gamut.getTargets());
    const bool isFinite = std::all_of(corners.cbegin(), corners.cend(),
        [](const QPointF &corner) { return std::isfinite(corner.x()) && std::isfinite(corner.y()); });
    return isFinite ? corners : QPolygonF();
}

QRectF DiagramPainter::namePlace(int index) const
{
    const QVector<DiagramLabel> &labels = d->editedLayout().places.labels();
    const auto found = std::find_if(labels.cbegin(), labels.cend(),
        [index](const DiagramLabel &label) { return label.kind == DiagramLabel::Kind::Gamut && label.index == index; });
    return found != labels.cend() ? found->place : QRectF();
}

QPen DiagramPainter::gamutPen(GamutRole role)
{
    const GamutStyle style = gamutStyle(role);
    QPen pen(style.color, style.width, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin);
    switch (style.line) {
    case Qt::DashLine:
        pen.setDashPattern({5.0, 2.5});
        break;
    case Qt::DashDotLine:
        pen.setDashPattern({5.0, 2.0, 1.5, 2.0});
        break;
    case Qt::DotLine:
        pen.setDashPattern({1.5, 1.5});
        break;
    default:
        break;
    }
    return pen;
}

void DiagramPainter::paintKeyLine(QPainter *painter, const QRectF &place, GamutRole role, DiagramGround ground)
{
    DrawList list;
    // On whole pixels, so that thin lines are not washed out.
    const bool isOdd = qRound(gamutPen(role).widthF()) % 2 == 1;
    const double y = isOdd ? std::floor(place.center().y()) + 0.5 : std::round(place.center().y());
    const double length = std::min(place.width(), dashesOfKey);
    const QPointF from(place.center().x() - length / 2.0, y);
    drawCased(list, QPolygonF(QVector<QPointF>{from, from + QPointF(length, 0.0)}), false, place, gamutPen(role),
        diagramPalette(ground).casing);
    list.paint(painter);
}

void DiagramPainter::paintText(
    QPainter *painter, const QPointF &at, const QString &text, const QColor &color, const QColor &casing)
{
    DrawList list;
    list.text(at, text, TextStyle(fontForDiagrams(painter->font()), painter->device(), 1.0), color, casing);
    list.paint(painter);
}

QPolygonF DiagramPainter::ring(const DiagramViewport &viewport, const QPointF &xy, double radius)
{
    QPolygonF curve;
    if (!(radius > 0.0)) {
        return curve;
    }
    const Model::DiagramPoint centre = Model::toDiagram(Model::Diagram::Cie1976, {xy.x(), xy.y()});
    curve.reserve(ringCorners);
    for (int i = 0; i < ringCorners; ++i) {
        const double angle = 2.0 * M_PI * i / ringCorners;
        const Model::DiagramPoint at = Model::fromDiagram(
            Model::Diagram::Cie1976, {centre.x + radius * std::cos(angle), centre.y + radius * std::sin(angle)});
        curve.append(viewport.toPosition(QPointF(at.x, at.y)));
    }
    return curve;
}

} // namespace ceiechart
