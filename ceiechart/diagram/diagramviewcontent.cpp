// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
// What the view shows, and what follows when it changes.
#include <ceiechart/diagram/diagramgamuts_p.h>
#include <ceiechart/diagram/diagramview_p.h>

#include <algorithm>
#include <iterator>

namespace ceiechart {

DiagramGround DiagramView::Private::groundOf(const QPalette &palette)
{
    constexpr int middle = 128;
    return palette.color(QPalette::Base).lightness() < middle ? DiagramGround::Dark : DiagramGround::Light;
}

const DiagramGamut *DiagramView::Private::target() const
{
    return content.find(GamutRole::Target);
}

bool DiagramView::Private::hasHandles() const
{
    const DiagramGamut *gamut = target();
    return !readOnly && gamut && content.shows(*gamut);
}

TargetContext DiagramView::Private::context() const
{
    TargetContext result;
    result.target = target()->gamut.getTargets();
    if (const DiagramGamut *original = content.find(GamutRole::Original)) {
        result.original = original->gamut.getTargets();
    }
    for (const DiagramGamut &gamut : content.gamuts) {
        // To snap to what cannot be seen would look like a fault.
        if (gamut.role == GamutRole::Standard && content.shows(gamut)) {
            result.standards.push_back(gamut.gamut);
        }
    }
    result.diagram = viewport.diagram();
    return result;
}

void DiagramView::Private::change(const DiagramContent &changed)
{
    const QPointer<DiagramView> view(q);
    const auto former = target() ? std::make_optional(target()->gamut.getTargets()) : std::nullopt;
    const DiagramContent replaced = content;
    content = changed;
    content.ground = groundOf(q->palette());
    painter->setContent(content);
    linesAreReady = linesAreReady && sameButForEdits(replaced, content);
    const bool isOther = former && target() && !sameTargets(*former, target()->gamut.getTargets());
    if (edit && isOther) {
        edit->rebase(target()->gamut.getTargets());
    }
    refreshOverlay();
    q->update();
    if (!hasHandles()) {
        if (hand == Hand::Holding) {
            hand = Hand::Spent;
        }
        if (isOther) {
            before = target()->gamut.getTargets(); // it is the host's, not one that a cancel takes back
        }
        q->cancelEditing();
        if (view) {
            edit.reset(); // of a key
            if (selected && !hasHandles()) {
                q->setSelectedVertex(std::nullopt);
            }
        }
    }
    if (view) {
        look(viewport); // as the margins may be others
    }
}

void DiagramView::Private::replace(GamutRole role, const std::vector<Model::ColorGamut> &gamuts)
{
    DiagramContent changed = content;
    const auto isOfRole = [role](const DiagramGamut &gamut) { return gamut.role == role; };
    QVector<DiagramGamut> former;
    std::copy_if(changed.gamuts.begin(), changed.gamuts.end(), std::back_inserter(former), isOfRole);
    const auto isSame = [](const DiagramGamut &a, const Model::ColorGamut &b) {
        return a.gamut.colorGamutName() == b.colorGamutName() && sameTargets(a.gamut.getTargets(), b.getTargets());
    };
    if (std::equal(former.begin(), former.end(), gamuts.begin(), gamuts.end(), isSame)) {
        return;
    }
    int place = int(std::find_if(changed.gamuts.begin(), changed.gamuts.end(), isOfRole) - changed.gamuts.begin());
    changed.gamuts.erase(std::remove_if(changed.gamuts.begin(), changed.gamuts.end(), isOfRole), changed.gamuts.end());
    for (size_t i = 0; i < gamuts.size(); ++i) {
        // Another gamut in the place of one that is switched off is switched off too.
        const bool visible = int(i) < former.size() ? former[int(i)].visible : true;
        changed.gamuts.insert(place++, {gamuts[i], role, visible});
    }
    q->setContent(changed);
}

void DiagramView::Private::followPalette()
{
    if (content.ground != groundOf(q->palette())) {
        change(content);
    }
}

const DiagramContent &DiagramView::content() const
{
    return d->content;
}

const QVector<DiagramGamut> &DiagramView::gamuts() const
{
    return d->content.gamuts;
}

std::optional<Model::ColorGamut> DiagramView::gamut(GamutRole role) const
{
    const DiagramGamut *found = d->content.find(role);
    return found ? std::make_optional(found->gamut) : std::nullopt;
}

ShownLayers DiagramView::layers() const
{
    return d->content.layers;
}

bool DiagramView::isLayerShown(DiagramLayer layer) const
{
    return d->content.layers.testFlag(layer);
}

HorseshoeColors DiagramView::horseshoeColors() const
{
    return d->content.colors;
}

void DiagramView::setContent(const DiagramContent &content)
{
    const QPointer<DiagramView> view(this);
    const bool areOtherLayers = content.layers != d->content.layers;
    const bool areOtherColors = content.colors != d->content.colors;
    d->change(content);
    if (!view) {
        return;
    }
    announceGamuts(this);
    if (areOtherLayers && !d->tell(&DiagramView::layersChanged)) {
        return;
    }
    if (areOtherColors && !d->tell(&DiagramView::horseshoeColorsChanged)) {
        return;
    }
    d->tell(&DiagramView::gamutsChanged);
}

void DiagramView::setGamuts(const QVector<DiagramGamut> &gamuts)
{
    DiagramContent changed = d->content;
    changed.gamuts = gamuts;
    setContent(changed);
}

void DiagramView::setTarget(const Model::ColorGamut &gamut)
{
    d->replace(GamutRole::Target, {gamut});
}

void DiagramView::setOriginal(const Model::ColorGamut &gamut)
{
    d->replace(GamutRole::Original, {gamut});
}

void DiagramView::setMeasured(const Model::ColorGamut &gamut)
{
    d->replace(GamutRole::Measured, {gamut});
}

void DiagramView::setDeclared(const Model::ColorGamut &gamut)
{
    d->replace(GamutRole::Declared, {gamut});
}

void DiagramView::setStandards(const std::vector<Model::ColorGamut> &gamuts)
{
    d->replace(GamutRole::Standard, gamuts);
}

void DiagramView::clearGamuts(GamutRole role)
{
    d->replace(role, {});
}

void DiagramView::setMeasurePoints(const QVector<DiagramMark> &points)
{
    d->changePart(&DiagramContent::measurePoints, points);
}

void DiagramView::setColorTemperaturePoints(const QVector<DiagramMark> &points)
{
    d->changePart(&DiagramContent::colorTemperaturePoints, points);
}

void DiagramView::setCmyPoints(const QVector<DiagramMark> &points)
{
    d->changePart(&DiagramContent::cmyPoints, points);
}

void DiagramView::setRings(const QVector<DiagramRings> &rings)
{
    d->putRings(rings);
}

void DiagramView::setTrail(const QVector<QPointF> &trail)
{
    d->changePart(&DiagramContent::trail, trail);
}

void DiagramView::setLayers(ShownLayers layers)
{
    if (layers == d->content.layers) {
        return;
    }
    DiagramContent changed = d->content;
    changed.layers = layers;
    const QPointer<DiagramView> view(this);
    d->change(changed);
    if (view) {
        announceGamuts(this);
        d->tell(&DiagramView::layersChanged);
    }
}

void DiagramView::setLayerShown(DiagramLayer layer, bool shown)
{
    ShownLayers layers = d->content.layers;
    layers.setFlag(layer, shown);
    setLayers(layers);
}

void DiagramView::setHorseshoeColors(HorseshoeColors colors)
{
    if (colors == d->content.colors) {
        return;
    }
    DiagramContent changed = d->content;
    changed.colors = colors;
    const QPointer<DiagramView> view(this);
    d->change(changed);
    if (view) {
        d->tell(&DiagramView::horseshoeColorsChanged);
    }
}

} // namespace ceiechart
