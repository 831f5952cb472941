// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
// The widget: its settings and its events.
#include <ceiechart/diagram/diagramview_p.h>

#include <QGestureEvent>
#include <QKeyEvent>
#include <QTouchEvent>

namespace ceiechart {

DiagramView::Private::Private(DiagramView *view)
    : q(view)
    , painter(std::make_unique<DiagramPainter>())
    , rules(std::make_shared<StandardTargetRules>())
{
}

QFont DiagramView::Private::textFont() const
{
    // The same whether it is painted on the widget or on a picture that lets through what is behind.
    QFont font = q->font();
    font.setStyleStrategy(QFont::StyleStrategy(font.styleStrategy() | QFont::NoSubpixelAntialias));
    return font;
}

int DiagramView::Private::decimals(bool isSlow) const
{
    return digits == automaticDigits ? std::min(decimalsFor(viewport.scale()) + (isSlow ? 1 : 0), mostDecimals)
                                     : digits;
}

DiagramView::DiagramView(QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<Private>(this))
{
    installDiagramAccessibility();
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAttribute(Qt::WA_AcceptTouchEvents);
    grabGesture(Qt::PinchGesture);
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setSizePolicy(policy);
    constexpr int labelStays = 1000; // milliseconds after the last key
    d->labelTimer.setSingleShot(true);
    d->labelTimer.setInterval(labelStays);
    connect(&d->labelTimer, &QTimer::timeout, this, [this] { d->dropLabel(); });
    d->content.ground = Private::groundOf(palette());
    d->painter->setContent(d->content);
    d->painter->setFont(d->textFont());
    d->viewport = DiagramViewport(Model::Diagram::Cie1931, QSizeF(size()));
    d->look(d->viewport.fittedToAll());
}

DiagramView::~DiagramView() = default;

bool DiagramView::isReadOnly() const
{
    return d->readOnly;
}

int DiagramView::digits() const
{
    return d->digits;
}

int DiagramView::shownDigits() const
{
    return d->decimals(d->label && d->label->isSlow);
}

bool DiagramView::isReadoutShown() const
{
    return d->readoutShown;
}

QString DiagramView::editNote() const
{
    return d->editNote;
}

std::shared_ptr<const TargetRules> DiagramView::rules() const
{
    return d->rules;
}

QString DiagramView::coordinatesText(const QPointF &xy) const
{
    const Model::DiagramTraits &traits = Model::diagramTraits(diagram());
    const Model::DiagramPoint point = Model::toDiagram(diagram(), {xy.x(), xy.y()});
    if (!std::isfinite(point.x) || !std::isfinite(point.y)) {
        return tr("not known", "coordinates");
    }
    const int decimals = shownDigits();
    return QStringLiteral("%1 %2  %3 %4")
        .arg(QString::fromUtf8(traits.xName), coordinateText(point.x, decimals), QString::fromUtf8(traits.yName),
            coordinateText(point.y, decimals));
}

std::optional<GamutVertex> DiagramView::selectedVertex() const
{
    return d->selected;
}

bool DiagramView::isEditing() const
{
    return d->hand == Private::Hand::Dragging;
}

void DiagramView::setRules(std::shared_ptr<const TargetRules> rules)
{
    d->rules = rules ? std::move(rules) : std::make_shared<StandardTargetRules>();
    d->refreshOverlay();
    update();
}

void DiagramView::setSelectedVertex(std::optional<GamutVertex> vertex)
{
    const auto isIgnored = [&] {
        return vertex == d->selected || (vertex && !(isVertex(*vertex) && d->hasHandles()))
            || d->hand == Private::Hand::Holding || d->hand == Private::Hand::Dragging;
    };
    if (isIgnored()) {
        return;
    }
    const QPointer<DiagramView> view(this);
    d->finishKeys();
    if (!view || isIgnored()) {
        return;
    }
    d->dropLabel();
    d->selected = vertex;
    d->updateOverlay();
    if (vertex && hasFocus()) {
        announceFocus(this, *vertex);
    }
    d->tell(&DiagramView::selectedVertexChanged);
}

void DiagramView::setReadOnly(bool readOnly)
{
    if (readOnly == d->readOnly) {
        return;
    }
    const QPointer<DiagramView> view(this);
    cancelEditing();
    if (view && readOnly) {
        if (d->hand == Private::Hand::Holding) {
            d->hand = Private::Hand::Spent;
        }
        setSelectedVertex(std::nullopt);
    }
    if (!view) {
        return;
    }
    d->readOnly = readOnly;
    d->refreshOverlay();
    update();
    announceGamuts(this);
    d->tell(&DiagramView::readOnlyChanged);
}

void DiagramView::setDigits(int digits)
{
    const int wanted = digits >= 0 && digits <= mostDecimals ? digits : automaticDigits;
    if (wanted != d->digits) {
        d->digits = wanted;
        d->refreshOverlay();
        update();
        d->tell(&DiagramView::digitsChanged);
    }
}

void DiagramView::setReadoutShown(bool shown)
{
    if (shown != d->readoutShown) {
        d->readoutShown = shown;
        d->refreshOverlay();
        update();
        d->tell(&DiagramView::readoutShownChanged);
    }
}

void DiagramView::setEditNote(const QString &note)
{
    if (note == d->editNote) {
        return;
    }
    d->editNote = note;
    if (d->label) {
        d->updateOverlay();
    }
    d->tell(&DiagramView::editNoteChanged);
}

QSize DiagramView::sizeHint() const
{
    return QSize(640, 640);
}

QSize DiagramView::minimumSizeHint() const
{
    return QSize(160, 160);
}

bool DiagramView::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TouchCancel:
        return d->touch(static_cast<QTouchEvent *>(event)) || QWidget::event(event);
    case QEvent::Gesture:
        return d->gesture(static_cast<QGestureEvent *>(event)) || QWidget::event(event);
    case QEvent::NativeGesture:
        return d->nativeGesture(static_cast<QNativeGestureEvent *>(event)) || QWidget::event(event);
    case QEvent::ShortcutOverride:
        // A key that the view takes must not reach a shortcut of the window first.
        if (d->wants(*static_cast<QKeyEvent *>(event))) {
            event->accept();
            return true;
        }
        break;
    default:
        break;
    }
    return QWidget::event(event);
}

void DiagramView::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    d->forgetPictures();
    d->letGo(); // releases will go elsewhere
}

void DiagramView::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    switch (event->type()) {
    case QEvent::PaletteChange:
    case QEvent::StyleChange:
        d->followPalette();
        break;
    case QEvent::FontChange:
        d->painter->setFont(d->textFont());
        d->change(d->content);
        break;
    case QEvent::LanguageChange:
        announceGamuts(this);
        d->change(d->content);
        break;
    case QEvent::EnabledChange:
        if (!isEnabled()) {
            d->letGo();
        }
        break;
    case QEvent::LayoutDirectionChange:
        d->refreshOverlay();
        update();
        break;
    default:
        break;
    }
}

} // namespace ceiechart
