// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "window/lens.h"

#include "display/valuetexts.h"
#include "drawing/documentview.h"
#include "drawing/layerswitches.h"
#include "editing/document.h"
#include "editing/targetsession.h"
#include "panel/scaledfont.h"

#include <ceiechart/diagram/diagrampainter.h>

#include <QLabel>
#include <QVBoxLayout>

namespace gamutviewer {

namespace {

//! The place of the outermost ring round \a white; empty without any.
QRectF extentOfRings(const DocumentView &view, const QPointF &white)
{
    QRectF extent;
    for (const ceiechart::DiagramRings &rings : view.content().rings) {
        if (rings.xy != white) {
            continue;
        }
        for (const double radius : rings.radii) {
            extent |= ceiechart::DiagramPainter::ring(view.viewport(), rings.xy, radius).boundingRect();
        }
    }
    return extent;
}

} // namespace

Lens::Lens(TargetSession *session, LayerSwitches *switches, QWidget *parent)
    : QFrame(parent)
    , m_session(session)
    , m_switches(switches)
    , m_ownSwitches(new LayerSwitches(this))
{
    setFrameShape(StyledPanel);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Base);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 2, 4, 4);
    layout->setSpacing(2);
    m_value = new QLabel(this);
    m_value->setFont(scaledFont(font(), 0.8));
    m_value->setTextFormat(Qt::PlainText);
    m_value->setMinimumWidth(1);
    m_view = new DocumentView(session, m_ownSwitches, this);
    m_view->setAccessibleName(tr("White point, enlarged"));
    m_view->setMinimumSize(80, 80);
    layout->addWidget(m_value);
    layout->addWidget(m_view, 1);
    connect(session->document(), &Document::opened, this, &Lens::showWhite);
}

void Lens::showWhite()
{
    m_view->showWhite();
    m_isOnWhite = m_view->gamut(ceiechart::GamutRole::Target).has_value();
}

void Lens::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
    layout()->activate();
    showWhite();
}

void Lens::refresh(const DocumentView &large)
{
    using ceiechart::DiagramLayer;
    LayerSwitches::State state = m_switches->state();
    state.colors = ceiechart::HorseshoeColors::None;
    state.layers |= DiagramLayer::Isotherms | DiagramLayer::PlanckianLocus | DiagramLayer::Rings | DiagramLayer::Whites;
    // Away from the white there is nothing to tell apart.
    state.layers &= ~(DiagramLayer::CommonArea | DiagramLayer::LostArea | DiagramLayer::Axes | DiagramLayer::Names);
    m_ownSwitches->setState(state);
    m_view->refresh(&large);
    const auto target = m_session->document()->target();
    setEnabled(target.has_value());
    if (!target) {
        m_value->clear();
        return;
    }
    const QPointF white = xyOf(target->getTargets().white);
    const auto temperature = ceiechart::colorTemperature(white);
    m_value->setText(temperature ? tr("%1  Duv %2", "colour temperature of the white")
                                       .arg(temperatureText(*temperature), duvText(*temperature))
                                 : tr("no colour temperature"));
    m_view->setAccessibleDescription(m_value->text());
    const ceiechart::DiagramViewport &seen = m_view->viewport();
    const QRectF rings = extentOfRings(*m_view, white);
    // Where one has zoomed in further than that, the white is enough.
    const bool hasRoomForRings = rings.width() <= seen.plot().width() && rings.height() <= seen.plot().height();
    const bool isSeen = hasRoomForRings ? seen.plot().contains(rings) : seen.plot().contains(seen.toPosition(white));
    if (!m_isOnWhite || (!m_view->isEditing() && !isSeen)) {
        showWhite();
    }
}

} // namespace gamutviewer
