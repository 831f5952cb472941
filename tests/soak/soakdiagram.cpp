// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "events.h"
#include "soak.h"

#include <ceiechart/diagram/diagrampainter.h>
#include <ceiechart/diagram/diagramview.h>

#include <QApplication>
#include <QPaintEngine>
#include <QPainter>
#include <QPicture>
#include <QPointer>
#include <QVBoxLayout>

#include <limits>
#include <memory>

namespace soak {

namespace {

using namespace ceiechart;

Model::Target color(Round &round)
{
    const QPointF xy = round.point();
    return Model::Target::fromYxy(round.number(), xy.x(), xy.y());
}

Model::ColorGamut gamut(Round &round)
{
    if (round.chance(40)) {
        return round.toss() ? Model::rec709() : Model::rec2020();
    }
    Model::Targets targets;
    for (const GamutVertex vertex : allGamutVertices) {
        targetAt(targets, vertex) = color(round);
    }
    return {round.text().toStdString(), targets};
}

DiagramMark mark(Round &round)
{
    return {round.point(), round.text(), round.toss() ? QColor() : QColor(round.between(0, 255), 9, 9)};
}

DiagramRings rings(Round &round)
{
    return {round.point(), round.list<QVector<double>>(4, [&] { return round.number(); })};
}

DiagramContent content(Round &round)
{
    DiagramContent made;
    made.layers = ShownLayers(round.toss() ? 0x1fffff : round.integer());
    made.colors = HorseshoeColors(round.between(0, 2));
    made.ground = DiagramGround(round.between(0, 1));
    made.gamuts = round.list<QVector<DiagramGamut>>(8, [&] {
        return DiagramGamut{gamut(round), GamutRole(round.between(0, 4)), round.chance(80)};
    });
    const auto marks = [&] { return round.list<QVector<DiagramMark>>(20, [&] { return mark(round); }); };
    made.measurePoints = marks();
    made.colorTemperaturePoints = marks();
    made.cmyPoints = marks();
    made.rings = round.list<QVector<DiagramRings>>(3, [&] { return rings(round); });
    made.trail = round.list<QVector<QPointF>>(20, [&] { return round.point(); });
    return made;
}

//! Knows when Qt goes on with it after an event, which is when a slot must not delete a view.
class View : public DiagramView {
public:
    using DiagramView::DiagramView;

    bool isInUse() const { return m_uses > 0; }

protected:
    void resizeEvent(QResizeEvent *event) override
    {
        ++m_uses;
        DiagramView::resizeEvent(event);
        --m_uses;
    }

    void focusInEvent(QFocusEvent *event) override
    {
        ++m_uses;
        DiagramView::focusInEvent(event);
        --m_uses;
    }

    void focusOutEvent(QFocusEvent *event) override
    {
        ++m_uses;
        DiagramView::focusOutEvent(event);
        --m_uses;
    }

private:
    int m_uses = 0;
};

//! Takes any coordinates, and does nothing with what is painted: to record a large picture takes Qt seconds.
class NowhereEngine : public QPaintEngine {
public:
    NowhereEngine()
        : QPaintEngine(AllFeatures)
    {
    }

    bool begin(QPaintDevice *) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState &) override { }
    void drawPath(const QPainterPath &) override { }
    void drawPolygon(const QPointF *, int, PolygonDrawMode) override { }
    void drawPixmap(const QRectF &, const QPixmap &, const QRectF &) override { }
    void drawImage(const QRectF &, const QImage &, const QRectF &, Qt::ImageConversionFlags) override { }
    void drawTextItem(const QPointF &, const QTextItem &) override { }
    Type type() const override { return User; }
};

class Nowhere : public QPaintDevice {
public:
    QPaintEngine *paintEngine() const override { return &m_engine; }

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        constexpr int dotsPerInch = 96;
        switch (metric) {
        case PdmDpiX:
        case PdmDpiY:
        case PdmPhysicalDpiX:
        case PdmPhysicalDpiY:
            return dotsPerInch;
        case PdmDevicePixelRatio:
            return 1;
        case PdmWidth:
        case PdmHeight:
            return std::numeric_limits<int>::max();
        default:
            return QPaintDevice::metric(metric);
        }
    }

private:
    mutable NowhereEngine m_engine;
};

//! A host that answers the signals of its view by calling it again, and sometimes by deleting it.
class Host {
public:
    explicit Host(Round &round)
        : m_round(round)
        , m_parent(std::make_unique<QWidget>())
        , m_view(new View(m_parent.get()))
    {
        m_parent->resize(round.side(50, 900), round.side(50, 900));
        auto *layout = new QVBoxLayout(m_parent.get());
        layout->addWidget(m_view);
        answerSignals();
        m_parent->show();
    }

    bool isGone() const { return !m_view; }
    void step();

private:
    void answer();
    void answerSignals();
    void set();
    void paint();
    std::shared_ptr<StandardTargetRules> rules();

    Round &m_round;
    std::unique_ptr<QWidget> m_parent;
    QPointer<View> m_view;
    int m_depth = 0;
};

void Host::answerSignals()
{
    // Each slot is its own receiver's, so that none runs on a host that is gone.
    const auto reply = [this] { answer(); };
    const View *view = m_view;
    QObject::connect(view, &DiagramView::diagramChanged, m_parent.get(), reply);
    QObject::connect(view, &DiagramView::layersChanged, m_parent.get(), reply);
    QObject::connect(view, &DiagramView::horseshoeColorsChanged, m_parent.get(), reply);
    QObject::connect(view, &DiagramView::gamutsChanged, m_parent.get(), reply);
    QObject::connect(view, &DiagramView::viewChanged, m_parent.get(), reply);
    QObject::connect(view, &DiagramView::readOnlyChanged, m_parent.get(), reply);
    QObject::connect(view, &DiagramView::digitsChanged, m_parent.get(), reply);
    QObject::connect(view, &DiagramView::readoutShownChanged, m_parent.get(), reply);
    QObject::connect(view, &DiagramView::editNoteChanged, m_parent.get(), reply);
    QObject::connect(view, &DiagramView::selectedVertexChanged, m_parent.get(), reply);
    QObject::connect(view, &DiagramView::editingStarted, m_parent.get(), reply);
    QObject::connect(view, &DiagramView::targetEdited, m_parent.get(), reply);
    QObject::connect(view, &DiagramView::editingFinished, m_parent.get(), reply);
    QObject::connect(view, &DiagramView::editingCanceled, m_parent.get(), reply);
    QObject::connect(view, &DiagramView::editRefused, m_parent.get(), reply);
    QObject::connect(view, &DiagramView::hovered, m_parent.get(), reply);
    QObject::connect(view, &DiagramView::hoverEnded, m_parent.get(), reply);
}

void Host::answer()
{
    if (m_depth >= 2 || !m_view || m_round.chance(60)) {
        return;
    }
    ++m_depth;
    if (m_round.chance(1) && !m_view->isInUse()) {
        delete m_view.data();
    } else {
        set();
    }
    --m_depth;
}

std::shared_ptr<StandardTargetRules> Host::rules()
{
    if (m_round.chance(20)) {
        return nullptr;
    }
    auto made = std::make_shared<StandardTargetRules>();
    made->setHoldsWhite(m_round.toss());
    made->setLocksPrimaries(m_round.chance(20));
    made->setLocksWhite(m_round.chance(20));
    made->setStaysInsideOriginal(m_round.toss());
    made->setSnaps(m_round.toss());
    return made;
}

void Host::set()
{
    Round &r = m_round;
    const auto marks = [&r] { return r.list<QVector<DiagramMark>>(30, [&] { return mark(r); }); };
    r.oneOf({
        [&] { m_view->setContent(content(r)); },
        [&] { m_view->setTarget(gamut(r)); },
        [&] { m_view->setTarget(Model::dciP3D65()); },
        [&] { m_view->setOriginal(gamut(r)); },
        [&] { m_view->setMeasured(gamut(r)); },
        [&] { m_view->setDeclared(gamut(r)); },
        [&] { m_view->setStandards(r.list<std::vector<Model::ColorGamut>>(12, [&] { return gamut(r); })); },
        [&] { m_view->clearGamuts(GamutRole(r.between(-1, 5))); },
        [&] { m_view->setMeasurePoints(marks()); },
        [&] { m_view->setColorTemperaturePoints(marks()); },
        [&] { m_view->setCmyPoints(marks()); },
        [&] { m_view->setRings(r.list<QVector<DiagramRings>>(4, [&] { return rings(r); })); },
        [&] { m_view->setTrail(r.list<QVector<QPointF>>(30, [&] { return r.anyPoint(); })); },
        [&] { m_view->setRules(rules()); },
        [&] { m_view->setSelectedVertex(r.toss() ? std::optional(GamutVertex(r.between(-1, 4))) : std::nullopt); },
        [&] { m_view->moveVertex(GamutVertex(r.between(-1, 4)), r.point()); },
        [&] { m_view->setDiagram(Model::Diagram(r.chance(95) ? r.between(0, 2) : r.between(-1, 9))); },
        [&] { m_view->setLayers(ShownLayers(r.integer())); },
        [&] { m_view->setLayers(allDiagramLayers); },
        [&] { m_view->setLayerShown(DiagramLayer(1 << r.between(0, 22)), r.toss()); },
        [&] { m_view->setHorseshoeColors(HorseshoeColors(r.chance(95) ? r.between(0, 2) : r.between(-1, 9))); },
        [&] { m_view->setZoomFactor(r.toss() ? r.real(0.5, 500.0) : r.number()); },
        [&] { m_view->setCentre(r.point()); },
        [&] { m_view->setReadOnly(r.chance(20)); },
        [&] { m_view->setDigits(r.toss() ? r.between(-1, 10) : r.integer()); },
        [&] { m_view->setReadoutShown(r.toss()); },
        [&] { m_view->setEditNote(r.text()); },
        [&] { m_view->zoomIn(); },
        [&] { m_view->zoomOut(); },
        [&] { m_view->showAll(); },
        [&] { m_view->showTarget(); },
        [&] { m_view->showWhite(); },
        [&] { m_view->cancelEditing(); },
        [&] { m_view->coordinatesText(r.anyPoint()); },
    });
}

void Host::paint()
{
    Round &r = m_round;
    const auto side = [&r] { return r.chance(80) ? r.between(0, 400) : r.integer(); };
    if (r.toss()) {
        // No more than a host can hold; what it asks for beyond is its own affair.
        constexpr double most = 4e6;
        const QSize size(side(), side());
        const double ratio = r.chance(80) ? r.real(0.5, 3.0) : r.number();
        if (double(size.width()) * double(size.height()) < most) {
            m_view->toImage(size, ratio);
        }
        return;
    }
    const QPointF corner(r.chance(80) ? 0.0 : r.number(), r.chance(80) ? 0.0 : r.number());
    const QRectF place(corner, QSizeF(side(), side()));
    constexpr double large = 1000.0;
    QPicture picture;
    Nowhere nowhere;
    const bool isLarge = place.width() > large || place.height() > large;
    QPainter painter(isLarge ? static_cast<QPaintDevice *>(&nowhere) : &picture);
    m_view->paint(&painter, place);
}

void Host::step()
{
    Round &r = m_round;
    switch (r.between(0, 9)) {
    case 0:
    case 1:
    case 2:
        set();
        break;
    case 3:
        paint();
        break;
    case 4:
        if (r.chance(30)) {
            m_parent->resize(r.chance(95) ? r.side(1, 1200) : r.between(1, 40000), r.side(1, 1200));
        } else if (r.chance(30)) {
            m_parent->setVisible(r.chance(80));
        } else if (r.chance(5)) {
            m_view->setParent(nullptr);
            delete m_view.data();
        } else if (r.chance(3)) {
            m_parent.reset();
        }
        break;
    case 5:
        QApplication::processEvents();
        break;
    default:
        sendEvent(r, m_view);
        break;
    }
}

} // namespace

void useDiagram(Round &round)
{
    auto host = std::make_unique<Host>(round);
    while (round.next()) {
        host->step();
        if (host->isGone()) {
            host = std::make_unique<Host>(round);
        }
    }
}

} // namespace soak
