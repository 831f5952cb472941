// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "panel/layerkey.h"

#include "display/gamutfiles.h"
#include "editing/document.h"
#include "editing/targetedits.h"
#include "editing/targetsession.h"
#include "panel/accentbutton.h"
#include "panel/ornothing.h"
#include "panel/plaintooltip.h"
#include "panel/scaledfont.h"

#include <ceiechart/diagram/diagrampainter.h>

#include <QApplication>
#include <QButtonGroup>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStyledItemDelegate>

#include <algorithm>

namespace gamutviewer {

namespace {

using ceiechart::DiagramLayer;
using ceiechart::GamutRole;

// The widest name is what the name can become while the entry is dragged about. To measure the names of thousands of
// standards takes longer than a step may; the width of a name without a detail is kept.
enum ItemRole { NameRole = Qt::UserRole, DetailRole, GamutRoleRole, LayerRole, WidestNameRole, NameWidthRole };

constexpr int margin = 6; // pixels
constexpr int gap = 6;
constexpr int lineWidth = 28;
constexpr double sectionScale = 0.82;
constexpr double detailScale = 0.85;
constexpr int widestEntry = 190;
constexpr double keyScale = 0.85;
constexpr int firstPart = 1; // row, below the title of the section
constexpr int mostChanged = 200; // standards that come and go one by one; of more, all is built anew

QPoint positionOf(const QMouseEvent &event)
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    return event.pos();
#else
    return event.position().toPoint();
#endif
}

bool isSection(const QModelIndex &index)
{
    return !index.data(NameRole).isValid();
}

bool isGamut(const QListWidgetItem *entry)
{
    return entry->data(GamutRoleRole).isValid();
}

//! The cabinets of a wall are points as well.
bool hasMeasurePoints(const DisplayDescription &description)
{
    return !description.measurePoints.isEmpty() || !description.wall.cabinets.empty();
}

bool isPart(const QModelIndex &index)
{
    return !index.data(DetailRole).toString().isEmpty();
}

//! Paints entries: check box, line, name and, below it, what the gamut is here.
class EntryDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        const QFontMetrics metrics(option.font);
        if (isSection(index)) {
            return {60, metrics.height() + 2 * gap};
        }
        const int box = QApplication::style()->pixelMetric(QStyle::PM_IndicatorWidth);
        int height = metrics.height() + 4;
        int width = 0;
        if (!isPart(index)) {
            const QVariant known = index.data(NameWidthRole);
            width = known.isValid() ? known.toInt() : metrics.horizontalAdvance(index.data(NameRole).toString());
        } else {
            QFont bold = option.font;
            bold.setBold(true);
            width = metrics.horizontalAdvance(index.data(NameRole).toString());
            for (const ItemRole role : {NameRole, WidestNameRole}) {
                width = std::max(width, QFontMetrics(bold).horizontalAdvance(index.data(role).toString()));
            }
            height += QFontMetrics(scaledFont(option.font, detailScale)).height();
        }
        const int line = index.data(GamutRoleRole).isValid() ? lineWidth + gap : 0;
        return {std::min(2 * margin + box + gap + line + width, widestEntry), height};
    }

    void paint(QPainter *painter, const QStyleOptionViewItem &item, const QModelIndex &index) const override
    {
        QStyleOptionViewItem option = item;
        initStyleOption(&option, index);
        painter->save();
        orNothing([&] {
            const QRect place = option.rect.adjusted(margin, 0, -margin, 0);
            if (isSection(index)) {
                paintSection(painter, option, place, index);
            } else if (index.data(Qt::CheckStateRole).isValid()) {
                paintEntry(painter, option, place, index);
            }
        });
        painter->restore();
    }

    bool editorEvent(QEvent *, QAbstractItemModel *, const QStyleOptionViewItem &, const QModelIndex &) override
    {
        return false; // the key switches
    }

private:
    static void paintSection(
        QPainter *painter, const QStyleOptionViewItem &option, const QRect &place, const QModelIndex &index)
    {
        QFont font = scaledFont(option.font, sectionScale);
        font.setCapitalization(QFont::AllUppercase);
        font.setBold(true);
        painter->setFont(font);
        QColor color = option.palette.color(QPalette::Active, QPalette::Text);
        color.setAlphaF(0.65);
        painter->setPen(color);
        painter->drawText(place.adjusted(0, 0, 0, -2), Qt::AlignLeft | Qt::AlignBottom, index.data().toString());
    }

    static void paintEntry(QPainter *painter, const QStyleOptionViewItem &option, QRect place, const QModelIndex &index)
    {
        const QStyle *style = option.widget->style();
        const bool isChecked = index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
        const QFontMetrics metrics(option.font);
        const int firstLine = isPart(index) ? metrics.height() + 4 : place.height();
        QStyleOptionViewItem box = option;
        const int side = style->pixelMetric(QStyle::PM_IndicatorWidth, &option, option.widget);
        box.rect = QRect(place.left(), place.top() + (firstLine - side) / 2, side, side);
        box.state = (option.state & ~(QStyle::State_HasFocus | QStyle::State_On | QStyle::State_Off))
            | (isChecked ? QStyle::State_On : QStyle::State_Off);
        style->drawPrimitive(QStyle::PE_IndicatorItemViewItemCheck, &box, painter, option.widget);
        place.setLeft(box.rect.right() + 1 + gap);
        const QVariant role = index.data(GamutRoleRole);
        if (role.isValid()) {
            const bool isDark = option.palette.color(QPalette::Base).lightness() < 128;
            painter->setOpacity(isChecked ? 1.0 : 0.4);
            ceiechart::DiagramPainter::paintKeyLine(painter, QRectF(place.left(), place.top(), lineWidth, firstLine),
                GamutRole(role.toInt()), isDark ? ceiechart::DiagramGround::Dark : ceiechart::DiagramGround::Light);
            painter->setOpacity(1.0);
            place.setLeft(place.left() + lineWidth + gap);
        }
        QFont font = option.font;
        font.setBold(isPart(index));
        painter->setFont(font);
        painter->setPen(option.palette.color(isChecked ? QPalette::Normal : QPalette::Disabled, QPalette::Text));
        const QRect nameLine(place.left(), place.top(), place.width(), firstLine);
        painter->drawText(nameLine, Qt::AlignLeft | Qt::AlignVCenter,
            QFontMetrics(font).elidedText(index.data(NameRole).toString(), Qt::ElideMiddle, place.width()));
        if (isPart(index)) {
            painter->setFont(scaledFont(option.font, detailScale));
            painter->drawText(QRect(place.left(), place.top() + firstLine - 3, place.width(), place.height()),
                Qt::AlignLeft | Qt::AlignTop, index.data(DetailRole).toString());
        }
        if (option.state & QStyle::State_HasFocus) {
            QStyleOptionFocusRect focus;
            focus.QStyleOption::operator=(option);
            focus.rect = option.rect;
            focus.backgroundColor = option.palette.color(QPalette::Base);
            style->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, painter, option.widget);
        }
    }
};

} // namespace

LayerKey::LayerKey(Document *document, LayerSwitches *switches, QWidget *parent)
    : QListWidget(parent)
    , m_document(document)
    , m_switches(switches)
    , m_colors(new QButtonGroup(this))
{
    setAccessibleName(tr("Key: what the diagram shows"));
    setAccessibleDescription(tr("Space switches an entry, Return shows it alone"));
    setItemDelegate(new EntryDelegate(this));
    setFont(scaledFont(font(), keyScale));
    setFrameShape(NoFrame);
    setSelectionMode(NoSelection);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(ScrollPerPixel);
    setTabKeyNavigation(false);
    connect(document, &Document::changed, this, &LayerKey::refresh);
    connect(document, &Document::opened, switches, &LayerSwitches::forgetStandards);
    connect(document, &Document::opened, this, [this] {
        m_click.reset();
        m_alone = {};
    });
    connect(switches, &LayerSwitches::changed, this, &LayerKey::refreshChecks);
    connect(m_colors, &QButtonGroup::idClicked, this,
        [this](int colors) { m_switches->setColors(ceiechart::HorseshoeColors(colors)); });
    refresh();
}

QListWidgetItem *LayerKey::entry(const QString &name) const
{
    for (int row = 0; row < count(); ++row) {
        if (item(row)->data(NameRole) == name) {
            return item(row);
        }
    }
    return nullptr;
}

QSize LayerKey::sizeHint() const
{
    return {m_width + verticalScrollBar()->sizeHint().width() + 2 * frameWidth(), 480};
}

void LayerKey::addSection(const QString &title)
{
    auto *section = new QListWidgetItem(title, this);
    section->setFlags(Qt::NoItemFlags);
}

void LayerKey::addColors()
{
    auto *row = new QListWidgetItem(this);
    row->setFlags(Qt::ItemIsEnabled);
    row->setData(NameRole, QString());
    auto *box = new QWidget;
    auto *layout = new QHBoxLayout(box);
    layout->setContentsMargins(margin, 0, margin, 0);
    layout->setSpacing(0);
    layout->addWidget(new QLabel(tr("Colours"), box), 1);
    const std::pair<ceiechart::HorseshoeColors, QString> choices[]
        = {{ceiechart::HorseshoeColors::Full, tr("full", "colours of the horseshoe")},
            {ceiechart::HorseshoeColors::Dimmed, tr("dim", "colours of the horseshoe")},
            {ceiechart::HorseshoeColors::None, tr("off", "colours of the horseshoe")}};
    for (const auto &choice : choices) {
        auto *button = new AccentButton(box);
        button->setText(choice.second);
        button->setCheckable(true);
        button->setFont(scaledFont(font(), detailScale));
        button->setAccessibleName(tr("Colours: %1").arg(choice.second));
        m_colors->addButton(button, int(choice.first));
        layout->addWidget(button);
    }
    setItemWidget(row, box);
    row->setSizeHint(box->sizeHint());
}

QListWidgetItem *LayerKey::addEntry(DiagramLayer layer, std::optional<GamutRole> role, int row)
{
    auto *item = new QListWidgetItem;
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsUserCheckable | Qt::ItemIsSelectable);
    item->setData(LayerRole, int(layer));
    if (role) {
        item->setData(GamutRoleRole, int(*role));
    }
    item->setCheckState(Qt::Checked);
    insertItem(row < 0 ? count() : row, item);
    return item;
}

void LayerKey::fillEntry(QListWidgetItem *entry, const QString &name, const QString &detail) const
{
    entry->setData(NameRole, name);
    entry->setData(DetailRole, detail);
    if (detail.isEmpty()) {
        entry->setData(NameWidthRole, fontMetrics().horizontalAdvance(name));
    }
    entry->setToolTip(
        plainToolTip(detail.isEmpty() ? name : tr("%1: %2", "role and name of a gamut").arg(detail, name)));
    entry->setData(Qt::AccessibleTextRole,
        detail.isEmpty() ? name : tr("%1, %2", "name of a gamut, and its role").arg(name, detail));
}

void LayerKey::fillPart(QListWidgetItem *entry, const GamutPart &part) const
{
    fillEntry(entry, part.name(), part.roleName());
    if (part.role == GamutRole::Target) {
        const QString edited = withEditedTarget(m_document->description(), part.gamut.getTargets()).target;
        entry->setData(WidestNameRole, oneLine(shownGamutName(edited)));
    }
}

void LayerKey::addStandard(const QString &name, int row)
{
    fillEntry(addEntry(DiagramLayer::Standards, GamutRole::Standard, row), name);
}

LayerKey::Built LayerKey::wanted() const
{
    const DisplayDescription &description = m_document->description();
    Built wanted;
    const QVector<GamutPart> parts = gamutPartsToEdit(description);
    for (const GamutRole role : {GamutRole::Target, GamutRole::Original, GamutRole::Measured, GamutRole::Declared}) {
        for (const GamutPart &part : parts) {
            if (part.role == role) {
                wanted.parts.append(part);
                wanted.titles.append(part.title());
            }
        }
    }
    if (m_built && m_builtVersion == m_document->version()) {
        wanted.standards = m_built->standards;
        wanted.hasPoints = m_built->hasPoints;
        return wanted;
    }
    wanted.standards = description.standardNames(description.gamutPlaces());
    wanted.hasPoints = {
        hasMeasurePoints(description), !description.colorTemperaturePoints.isEmpty(), !description.cmyPoints.isEmpty()};
    return wanted;
}

void LayerKey::build(const Built &wanted)
{
    for (QAbstractButton *button : m_colors->buttons()) {
        m_colors->removeButton(button);
    }
    clear();
    addSection(tr("Gamuts"));
    for (const GamutPart &part : wanted.parts) {
        fillPart(addEntry(ceiechart::layerOf(part.role), part.role), part);
    }
    addSection(tr("Standards"));
    for (const QString &name : wanted.standards) {
        addStandard(name);
    }
    addSection(tr("Layers"));
    addColors();
    const auto addLayer = [this](const QString &name, DiagramLayer layer) { fillEntry(addEntry(layer, {}), name); };
    addLayer(tr("Common area"), DiagramLayer::CommonArea);
    addLayer(tr("Given up"), DiagramLayer::LostArea);
    addLayer(tr("Planckian locus"), DiagramLayer::PlanckianLocus);
    addLayer(tr("Isotherms"), DiagramLayer::Isotherms);
    addLayer(tr("Wavelengths"), DiagramLayer::Wavelengths);
    if (wanted.hasPoints.at(0)) {
        addLayer(tr("Measure points"), DiagramLayer::MeasurePoints);
    }
    if (wanted.hasPoints.at(1)) {
        addLayer(tr("CCT points"), DiagramLayer::ColorTemperaturePoints);
    }
    if (wanted.hasPoints.at(2)) {
        addLayer(tr("CMY points"), DiagramLayer::CmyPoints);
    }
    addLayer(tr("Tolerance rings"), DiagramLayer::Rings);
    addLayer(tr("Trail of the white"), DiagramLayer::Trail);
    addLayer(tr("Names"), DiagramLayer::Names);
    addLayer(tr("Axes"), DiagramLayer::Axes);
    addLayer(tr("Grid"), DiagramLayer::Grid);
}

bool LayerKey::changeStandards(const QStringList &names)
{
    const QStringList &former = m_built->standards;
    const int shorter = int(std::min(former.size(), names.size()));
    const int same = int(std::mismatch(former.begin(), former.begin() + shorter, names.begin()).first - former.begin());
    int sameEnd = 0;
    while (sameEnd < shorter - same && former.at(former.size() - 1 - sameEnd) == names.at(names.size() - 1 - sameEnd)) {
        ++sameEnd;
    }
    if (std::max(former.size(), names.size()) - same - sameEnd > mostChanged) {
        return false;
    }
    const int first = firstPart + int(m_built->parts.size()) + 1 + same;
    for (int i = same; i < former.size() - sameEnd; ++i) {
        delete takeItem(first);
    }
    for (int i = same; i < names.size() - sameEnd; ++i) {
        addStandard(names.at(i), first + i - same);
    }
    return true;
}

bool LayerKey::change(const Built &wanted)
{
    const auto sameRole = [](const GamutPart &a, const GamutPart &b) { return a.role == b.role; };
    const bool isAlike = m_built && m_built->hasPoints == wanted.hasPoints
        && std::equal(m_built->parts.begin(), m_built->parts.end(), wanted.parts.begin(), wanted.parts.end(), sameRole);
    if (isAlike && m_built->titles == wanted.titles && m_built->standards == wanted.standards) {
        return false;
    }
    m_pressed = nullptr;
    m_click.reset();
    m_isMeasured = false;
    if (isAlike && changeStandards(wanted.standards)) {
        for (int i = 0; i < wanted.parts.size(); ++i) {
            fillPart(item(firstPart + i), wanted.parts.at(i));
        }
    } else {
        build(wanted);
    }
    m_built = wanted;
    return true;
}

void LayerKey::measure()
{
    // In a drag, the diagram must stay where it is.
    if (m_isMeasured || m_document->isDragging()) {
        return;
    }
    m_isMeasured = true;
    const int width = sizeHintForColumn(0);
    if (width != m_width) {
        m_width = width;
        updateGeometry();
    }
}

void LayerKey::refresh()
{
    const bool isChanged = change(wanted());
    measure();
    if (isChanged || m_builtVersion != m_document->version()) {
        refreshChecks();
        m_builtVersion = m_document->version();
    }
}

void LayerKey::refreshChecks()
{
    const QSet<QString> named = namedStandards();
    const QSignalBlocker blocker(this);
    for (int row = 0; row < count(); ++row) {
        if (item(row)->flags() & Qt::ItemIsUserCheckable) {
            item(row)->setCheckState(isShown(item(row), named) ? Qt::Checked : Qt::Unchecked);
        }
    }
    if (QAbstractButton *button = m_colors->button(int(m_switches->state().colors))) {
        button->setChecked(true);
    }
    viewport()->update();
}

QSet<QString> LayerKey::namedStandards() const
{
    const QStringList &names = m_document->description().standards;
    return QSet<QString>(names.begin(), names.end());
}

bool LayerKey::isShown(const QListWidgetItem *entry, const QSet<QString> &named) const
{
    const auto layer = DiagramLayer(entry->data(LayerRole).toInt());
    return layer == DiagramLayer::Standards ? m_switches->isStandardShown(entry->data(NameRole).toString(), named)
                                            : m_switches->isShown(layer);
}

void LayerKey::toggle(QListWidgetItem *entry)
{
    if (!entry || !(entry->flags() & Qt::ItemIsUserCheckable)) {
        return;
    }
    m_alone[isGamut(entry)].reset();
    const bool show = !isShown(entry, namedStandards());
    const auto layer = DiagramLayer(entry->data(LayerRole).toInt());
    if (layer == DiagramLayer::Standards) {
        m_switches->setStandardShown(entry->data(NameRole).toString(), show);
    } else {
        m_switches->setShown(layer, show);
    }
}

void LayerKey::showAlone(const QListWidgetItem *entry)
{
    if (!entry || !(entry->flags() & Qt::ItemIsUserCheckable)) {
        return;
    }
    const auto layer = DiagramLayer(entry->data(LayerRole).toInt());
    const QString standard = layer == DiagramLayer::Standards ? entry->data(NameRole).toString() : QString();
    std::optional<Alone> &alone = m_alone[isGamut(entry)];
    const bool restores = alone && alone->layer == layer && alone->standard == standard;
    if (!alone) {
        alone = Alone{layer, standard, m_switches->state()};
    }
    alone->layer = layer;
    alone->standard = standard;
    // Only of its kind: a gamut among gamuts, a layer among layers.
    LayerSwitches::State state = m_switches->state();
    if (restores && isGamut(entry)) {
        state.standards = alone->before.standards;
    }
    for (int row = 0; row < count(); ++row) {
        const QListWidgetItem *other = item(row);
        if (!(other->flags() & Qt::ItemIsUserCheckable) || isGamut(other) != isGamut(entry)) {
            continue;
        }
        const auto otherLayer = DiagramLayer(other->data(LayerRole).toInt());
        if (otherLayer != DiagramLayer::Standards) {
            const bool isShown = restores ? alone->before.layers.testFlag(otherLayer) : other == entry;
            state.layers.setFlag(otherLayer, isShown);
        } else if (!restores) {
            state.standards.insert(other->data(NameRole).toString(), other == entry);
        }
    }
    if (restores) {
        alone.reset();
    }
    m_switches->setState(state);
}

void LayerKey::mousePressEvent(QMouseEvent *event)
{
    QListWidget::mousePressEvent(event);
    m_pressed = event->button() == Qt::LeftButton ? itemAt(positionOf(*event)) : nullptr;
}

void LayerKey::mouseReleaseEvent(QMouseEvent *event)
{
    QListWidget::mouseReleaseEvent(event);
    QListWidgetItem *pressed = m_pressed;
    m_pressed = nullptr;
    if (pressed && event->button() == Qt::LeftButton && pressed == itemAt(positionOf(*event))) {
        const Click click{m_switches->state(), m_alone};
        toggle(pressed);
        m_click = click;
    }
}

void LayerKey::mouseDoubleClickEvent(QMouseEvent *event)
{
    // The first click has switched the entry, which is not what was meant.
    if (event->button() == Qt::LeftButton) {
        if (m_click) {
            m_alone = m_click->alone;
            m_switches->setState(m_click->before);
            m_click.reset();
        }
        showAlone(itemAt(positionOf(*event)));
    }
    m_pressed = nullptr;
}

void LayerKey::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Space:
        toggle(currentItem());
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        showAlone(currentItem());
        break;
    default:
        QListWidget::keyPressEvent(event);
    }
}

void LayerKey::changeEvent(QEvent *event)
{
    QListWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        for (int row = 0; row < count(); ++row) {
            if (item(row)->data(NameWidthRole).isValid()) {
                item(row)->setData(
                    NameWidthRole, fontMetrics().horizontalAdvance(item(row)->data(NameRole).toString()));
            }
        }
        doItemsLayout();
        m_isMeasured = false;
        measure();
    }
}

} // namespace gamutviewer
