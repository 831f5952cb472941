// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "drawing/documentview.h"

#include "drawing/documentcontent.h"
#include "drawing/layerswitches.h"
#include "editing/document.h"
#include "editing/targetsession.h"

namespace gamutviewer {

DocumentView::DocumentView(TargetSession *session, const LayerSwitches *switches, QWidget *parent)
    : TargetView(session, parent)
    , m_switches(switches)
{
    // What came with the drag, such as the name of an edited target, is shown from then on.
    connect(this, &DiagramView::editingFinished, this, [this] {
        if (m_shownVersion != this->session()->document()->version()) {
            refresh();
        }
    });
    connect(session, &TargetSession::tolerancesChanged, this, [this] { refresh(); });
    connect(switches, &LayerSwitches::changed, this, [this] { m_shownVersion.reset(); });
}

QVector<ceiechart::DiagramRings> DocumentView::rings() const
{
    const Document *document = session()->document();
    const auto target = document->target();
    if (!target) {
        return {};
    }
    // A default is not judged.
    return targetRings(target->getTargets(), document->targetIsDefault() ? std::nullopt : session()->tolerances());
}

void DocumentView::refresh(const DocumentView *alike)
{
    const Document *document = session()->document();
    noteOutside();
    const bool showsAllElse = document->isDragging() && m_shownVersion == document->version();
    if (isEditing() || showsAllElse) {
        followTarget();
        setRings(rings());
        return;
    }
    // To find thousands of standards and their names takes time.
    const DisplayDescription &description = document->description();
    ceiechart::DiagramContent content = alike && alike->m_shownVersion == document->version()
        ? m_switches->withLayers(alike->content(), description)
        : m_switches->content(description);
    if (content.find(ceiechart::GamutRole::Target)) {
        content.rings = rings();
        content.trail = document->whiteTrail();
    }
    setContent(content);
    followSelection();
    m_shownVersion = document->version();
}

} // namespace gamutviewer
