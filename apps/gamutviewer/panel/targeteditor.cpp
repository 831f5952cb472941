// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "panel/targeteditor.h"

#include "display/chromaticity.h"
#include "display/valuetexts.h"
#include "editing/document.h"
#include "editing/gamutparts.h"
#include "editing/targetsession.h"
#include "panel/coordinatepair.h"
#include "panel/plaintooltip.h"

#include <gamutmodel/publishedgamuts.h>

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QSignalBlocker>
#include <QToolButton>
#include <QVBoxLayout>

namespace gamutviewer {

namespace {

constexpr double chromaticityStep = 0.001;
constexpr double highestLuminance = 1e6;
// What the fields of the white start from where it has no colour temperature.
constexpr double firstTemperature = 6500.0;
constexpr double firstDuv = 0.0;

//! As its fields show it. Through decimal text: the double nearest to the decimals, as the fields give it.
QPointF rounded(const QPointF &point)
{
    const auto number = [](double value) { return QString::number(value, 'f', chromaticityDecimals).toDouble(); };
    return QPointF(number(point.x()), number(point.y()));
}

//! Luminances are relative (a white of 1) or in cd/m²: as many decimals as either needs.
int luminanceDecimals(double luminance)
{
    return luminance < 10.0 ? 4 : 2;
}

} // namespace

TargetEditor::TargetEditor(TargetSession *session, QWidget *parent)
    : QWidget(parent)
    , m_session(session)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    auto *head = new QHBoxLayout;
    layout->addLayout(head);
    m_name = new QLabel(this);
    m_name->setTextFormat(Qt::PlainText);
    m_name->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    QFont bold = font();
    bold.setBold(true);
    m_name->setFont(bold);
    m_reset = new QToolButton(this);
    m_reset->setText(tr("&Reset to"));
    m_reset->setToolTip(tr("Replace the target with a standard or with a gamut of this display"));
    m_reset->setPopupMode(QToolButton::InstantPopup);
    m_reset->setFocusPolicy(Qt::TabFocus);
    m_resetMenu = new QMenu(m_reset);
    m_reset->setMenu(m_resetMenu);
    head->addWidget(m_name, 1);
    head->addWidget(m_reset);

    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(6);
    grid->setVerticalSpacing(3);
    layout->addLayout(grid);
    buildHeader(grid);
    for (const Vertex vertex : allVertices) {
        buildRow(grid, vertex);
    }
    buildTemperature(grid);
    for (int column = 1; column <= 3; ++column) {
        grid->setColumnStretch(column, 1);
    }

    auto *rules = new QHBoxLayout;
    layout->addLayout(rules);
    m_holdWhite = addRule(rules, tr("Hold &white"), tr("Moving a primary leaves the white point where it is"));
    m_lockPrimaries = addRule(rules, tr("&Lock primaries"), tr("Only the white point can be moved"));
    m_snap = addRule(
        rules, tr("S&nap"), tr("Dragged points snap to the corresponding points of the standards and of the original"));
    rules->addStretch();

    connect(m_holdWhite, &QCheckBox::toggled, session, &TargetSession::setHoldWhite);
    connect(m_lockPrimaries, &QCheckBox::toggled, session, &TargetSession::setLockPrimaries);
    connect(m_snap, &QCheckBox::toggled, session, &TargetSession::setSnaps);
    connect(m_coordinates, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &TargetEditor::dropWaiting);
    connect(m_luminanceUnit, QOverload<int>::of(&QComboBox::activated), session,
        [this] { m_session->setLuminanceUnit(LuminanceUnit(m_luminanceUnit->currentData().toInt())); });
    connect(m_resetMenu, &QMenu::aboutToShow, this, &TargetEditor::fillResetMenu);
    // A measurement that is followed changes nothing here, and must not disturb who is typing.
    connect(session->document(), &Document::edited, this, &TargetEditor::dropWaiting);
    connect(qApp, &QApplication::focusChanged, this, &TargetEditor::dropUnlessFocused);
    connect(session, &TargetSession::rulesChanged, this, &TargetEditor::refreshRules);
    connect(session, &TargetSession::selectionChanged, this, &TargetEditor::refresh);
    // What was typed and refused gives way to what is.
    connect(session, &TargetSession::refused, this, &TargetEditor::refresh);
    refresh();
    refreshRules();
}

TargetEditor::~TargetEditor()
{
    // The focus leaves the menu and the fields after this part of the editor is gone.
    disconnect(qApp, nullptr, this, nullptr);
    for (StepBox *box : findChildren<StepBox *>()) {
        box->removeEventFilter(this);
        disconnect(box, nullptr, this, nullptr);
    }
}

void TargetEditor::buildHeader(QGridLayout *grid)
{
    m_coordinates = new QComboBox(this);
    m_coordinates->addItems({tr("x, y"), tr("u′, v′")});
    m_coordinates->setToolTip(tr("Coordinates to display and edit"));
    m_coordinates->setAccessibleName(tr("Coordinates"));
    grid->addWidget(m_coordinates, 0, 0);
    m_firstHeader = new QLabel(this);
    m_secondHeader = new QLabel(this);
    int column = 1;
    for (QLabel *header : {m_firstHeader, m_secondHeader}) {
        header->setAlignment(Qt::AlignCenter);
        grid->addWidget(header, 0, column++);
    }
    m_luminanceUnit = new QComboBox(this);
    for (const LuminanceUnit unit :
        {LuminanceUnit::CandelaPerSquareMetre, LuminanceUnit::Relative, LuminanceUnit::NotKnown}) {
        m_luminanceUnit->addItem(
            unit == LuminanceUnit::NotKnown ? tr("Y, unit?") : tr("Y, %1").arg(luminanceUnitText(unit)), int(unit));
        m_luminanceUnit->setItemData(
            m_luminanceUnit->count() - 1, tr("Luminance: %1").arg(luminanceUnitText(unit)), Qt::ToolTipRole);
    }
    m_luminanceUnit->setToolTip(
        tr("Unit of the luminances. From relative to cd/m², the white becomes the brightest that the display is "
           "known to reach; from cd/m² to relative, it becomes 1."));
    grid->addWidget(m_luminanceUnit, 0, column);
}

StepBox *TargetEditor::addBox(double lowest, double highest, int decimals, double step, const QString &name)
{
    auto *box = new StepBox(this);
    box->setRange(lowest, highest);
    box->setDecimals(decimals);
    box->setSingleStep(step);
    box->setAccessibleName(name);
    return box;
}

void TargetEditor::connectBox(StepBox *box, Vertex vertex, const std::function<void(int)> &edit)
{
    // A run of steps in one field is one step of the history.
    const int mergeKey = ++m_boxes;
    box->setProperty("vertex", int(vertex));
    box->installEventFilter(this);
    connect(box, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this, [edit, mergeKey] { edit(mergeKey); });
    connect(box, &QDoubleSpinBox::editingFinished, m_session->document(), &Document::breakMerging);
}

void TargetEditor::buildRow(QGridLayout *grid, Vertex vertex)
{
    const QString name = ceiechart::gamutVertexName(vertex);
    Row &row = m_rows[size_t(vertex)];
    row.label = new QLabel(name, this);
    row.first = addBox(0.0, 1.0, chromaticityDecimals, chromaticityStep, QString());
    row.second = addBox(0.0, 1.0, chromaticityDecimals, chromaticityStep, QString());
    row.luminance = addBox(0.0, highestLuminance, 2, 1.0, tr("%1: luminance").arg(name));
    row.label->setBuddy(row.first);
    const int line = int(vertex) + 1;
    grid->addWidget(row.label, line, 0);
    grid->addWidget(row.first, line, 1);
    grid->addWidget(row.second, line, 2);
    grid->addWidget(row.luminance, line, 3);
    for (StepBox *box : {row.first, row.second}) {
        connectBox(box, vertex, [this, vertex, box](int mergeKey) { editCoordinate(vertex, box, mergeKey); });
    }
    connectBox(row.luminance, vertex,
        [this, vertex](int mergeKey) { m_session->setLuminance(vertex, luminance(vertex)->value(), mergeKey); });
}

void TargetEditor::buildTemperature(QGridLayout *grid)
{
    constexpr int line = 5;
    auto *label = new QLabel(tr("CCT, Duv"), this);
    label->setToolTip(tr("Correlated colour temperature of the white point and its distance from the Planckian locus"));
    // The lowest value of each stands for none.
    m_temperature = addBox(
        ceiechart::lowestTemperature - 1.0, ceiechart::highestTemperature, 0, 10.0, tr("white: colour temperature"));
    m_temperature->setSuffix(tr(" K"));
    m_temperature->setNoValue(undefinedText(), firstTemperature);
    m_duv = addBox(-ceiechart::greatestDuv - 0.0001, ceiechart::greatestDuv, 4, 0.001, tr("white: Duv"));
    m_duv->setNoValue(undefinedText(), firstDuv);
    label->setBuddy(m_temperature);
    grid->addWidget(label, line, 0);
    grid->addWidget(m_temperature, line, 1);
    grid->addWidget(m_duv, line, 2);
    connectBox(m_temperature, Vertex::White, [this](int mergeKey) { editTemperature(mergeKey); });
    connectBox(m_duv, Vertex::White, [this](int mergeKey) { editTemperature(mergeKey); });
}

QCheckBox *TargetEditor::addRule(QLayout *layout, const QString &text, const QString &explanation)
{
    auto *box = new QCheckBox(text, this);
    box->setToolTip(explanation);
    box->setAccessibleDescription(explanation);
    layout->addWidget(box);
    return box;
}

bool TargetEditor::showsUv() const
{
    return m_coordinates->currentIndex() == 1;
}

void TargetEditor::refresh()
{
    const auto target = m_session->document()->target();
    const GamutPart shownTarget{
        ceiechart::GamutRole::Target, target.value_or(Model::ColorGamut()), m_session->document()->targetIsDefault()};
    m_name->setText(target ? shownTarget.name() : tr("No target"));
    m_name->setToolTip(plainToolTip(m_name->text()));
    m_firstHeader->setText(showsUv() ? tr("u′") : tr("x"));
    m_secondHeader->setText(showsUv() ? tr("v′") : tr("y"));
    const Model::Targets targets = target ? target->getTargets() : Model::Targets();
    for (const Vertex vertex : allVertices) {
        const Row &row = m_rows[size_t(vertex)];
        const Model::Target &t = targetAt(targets, vertex);
        const QPointF shown = showsUv() ? uvFromXy(xyOf(t)) : xyOf(t);
        QFont font = row.label->font();
        font.setBold(vertex == m_session->selected());
        row.label->setFont(font);
        row.first->setAccessibleName(tr("%1: %2").arg(ceiechart::gamutVertexName(vertex), m_firstHeader->text()));
        row.second->setAccessibleName(tr("%1: %2").arg(ceiechart::gamutVertexName(vertex), m_secondHeader->text()));
        const Waiting waiting = m_waiting && m_waiting->vertex == vertex ? *m_waiting : Waiting{vertex, {}, {}, {}};
        row.first->showNumber(waiting.first.value_or(shown.x()));
        row.first->setDoubt(waiting.first ? waiting.reason : QString());
        row.second->showNumber(waiting.second.value_or(shown.y()));
        row.second->setDoubt(waiting.second ? waiting.reason : QString());
        const QSignalBlocker blocker(row.luminance);
        row.luminance->setDecimals(luminanceDecimals(targets.white.Y));
        row.luminance->setSingleStep(targets.white.Y < 10.0 ? 0.01 : 1.0);
        row.luminance->setValue(t.Y);
    }
    const LuminanceUnit unit = target ? target->unit : LuminanceUnit::NotKnown;
    m_luminanceUnit->setCurrentIndex(m_luminanceUnit->findData(int(unit)));
    m_luminanceUnit->setAccessibleName(tr("Unit of the luminances: %1").arg(luminanceUnitText(unit)));
    const auto white = ceiechart::colorTemperature(xyOf(targets.white));
    m_temperature->showNumber(white ? std::make_optional(white->kelvin) : std::nullopt);
    m_duv->showNumber(white ? std::make_optional(white->duv) : std::nullopt);
    setEnabled(target.has_value());
}

void TargetEditor::refreshRules()
{
    m_holdWhite->setChecked(m_session->holdWhite());
    m_lockPrimaries->setChecked(m_session->lockPrimaries());
    m_snap->setChecked(m_session->snaps());
    for (const Vertex vertex : allVertices) {
        const Row &row = m_rows[size_t(vertex)];
        row.first->setEnabled(m_session->isMovable(vertex));
        row.second->setEnabled(m_session->isMovable(vertex));
    }
    m_temperature->setEnabled(m_session->isMovable(Vertex::White));
    m_duv->setEnabled(m_session->isMovable(Vertex::White));
}

void TargetEditor::fillResetMenu()
{
    m_resetMenu->clear();
    const DisplayDescription &description = m_session->document()->description();
    QStringList names;
    for (const Model::ColorGamut &gamut : description.gamuts) {
        names.append(nameOf(gamut));
    }
    const int ownNames = names.size();
    for (const Model::PublishedGamut &published : Model::publishedGamuts()) {
        if (canBeTarget(published.gamut.getTargets())) {
            names.append(nameOf(published.gamut));
        }
    }
    names.removeDuplicates();
    for (int i = 0; i < names.size(); ++i) {
        const QString &name = names[i];
        if (i == ownNames && i > 0) {
            m_resetMenu->addSeparator();
        }
        if (name != description.target) {
            QString text = shownGamutName(name);
            QAction *action = m_resetMenu->addAction(text.replace(QLatin1Char('&'), QLatin1String("&&")));
            connect(action, &QAction::triggered, m_session, [this, name] { m_session->reset(name); });
        }
    }
}

bool TargetEditor::hasFocus(Vertex vertex) const
{
    // Of the window, which keeps it while another window is looked at.
    const QWidget *focused = window()->focusWidget();
    return focused && (focused == firstCoordinate(vertex) || focused == secondCoordinate(vertex));
}

void TargetEditor::editCoordinate(Vertex vertex, const StepBox *box, int mergeKey)
{
    Waiting typed = m_waiting && m_waiting->vertex == vertex ? *m_waiting : Waiting{vertex, {}, {}, {}};
    (box == firstCoordinate(vertex) ? typed.first : typed.second) = box->value();
    editCoordinates(typed, mergeKey);
}

void TargetEditor::editCoordinates(Waiting typed, int mergeKey)
{
    const auto target = m_session->document()->target();
    if (!target) {
        return;
    }
    // Only what was edited is taken from its field: the other coordinate may have more digits than are shown.
    const QPointF xy = xyOf(targetAt(target->getTargets(), typed.vertex));
    const QPointF present = showsUv() ? uvFromXy(xy) : xy;
    const QPointF shown = rounded(present);
    if (typed.first && *typed.first == shown.x()) {
        typed.first.reset();
    }
    if (typed.second && *typed.second == shown.y()) {
        typed.second.reset();
    }
    m_waiting.reset();
    if (typed.first || typed.second) {
        const QPointF wanted(typed.first.value_or(present.x()), typed.second.value_or(present.y()));
        const QPointF wantedXy = showsUv() ? xyFromUv(wanted) : wanted;
        typed.reason = m_session->whyNot(typed.vertex, wantedXy);
        if (typed.reason.isEmpty()) {
            m_session->setChromaticity(typed.vertex, wantedXy, mergeKey);
        } else if (hasFocus(typed.vertex)) {
            m_waiting = typed;
            m_session->refuse(tr("%1 Waiting for the other coordinate; Esc discards it.").arg(typed.reason));
        } else {
            m_session->refuse(typed.reason);
        }
    }
    refresh();
}

void TargetEditor::takeTyped()
{
    auto *box = qobject_cast<StepBox *>(window()->focusWidget());
    if (box && isAncestorOf(box)) {
        box->interpretText();
    }
}

void TargetEditor::dropWaiting()
{
    m_waiting.reset();
    refresh();
}

void TargetEditor::dropUnlessFocused()
{
    if (m_waiting && !hasFocus(m_waiting->vertex)) {
        const QString reason = m_waiting->reason;
        dropWaiting();
        m_session->refuse(tr("Not applied: %1").arg(reason));
    }
}

//! Returns whether that was all of it.
bool TargetEditor::coordinateKey(StepBox *box, QKeyEvent *event)
{
    const bool isPress = event->type() == QEvent::KeyPress;
    if (isPress && event->key() == Qt::Key_Escape && (m_waiting || box->isBeingTyped())) {
        dropWaiting();
        return true;
    }
    if (event->matches(QKeySequence::Undo) && m_waiting && !box->isBeingTyped()) {
        // What waits is the last thing done, and no step of the history yet.
        event->accept();
        if (isPress) {
            dropWaiting();
        }
        return true;
    }
    const auto vertex = Vertex(box->property("vertex").toInt());
    const bool isCoordinate = box == firstCoordinate(vertex) || box == secondCoordinate(vertex);
    const auto pair = isPress && isCoordinate && event->matches(QKeySequence::Paste)
        ? pairFromText(QApplication::clipboard()->text())
        : std::nullopt;
    if (pair) {
        editCoordinates({vertex, pair->x(), pair->y(), QString()}, 0);
    }
    return pair.has_value();
}

void TargetEditor::editTemperature(int mergeKey)
{
    const auto target = m_session->document()->target();
    if (!target) {
        return;
    }
    const auto present = ceiechart::colorTemperature(xyOf(target->getTargets().white));
    ceiechart::ColorTemperature wanted = present.value_or(ceiechart::ColorTemperature{firstTemperature, firstDuv});
    if (sender() == m_temperature) {
        wanted.kelvin = m_temperature->value();
    } else {
        wanted.duv = m_duv->value();
    }
    m_session->setWhiteTemperature(wanted.kelvin, wanted.duv, mergeKey);
}

bool TargetEditor::eventFilter(QObject *watched, QEvent *event)
{
    auto *box = qobject_cast<StepBox *>(watched);
    if (box && event->type() == QEvent::FocusIn) {
        m_session->select(Vertex(box->property("vertex").toInt()));
    }
    if (box && (event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride)
        && coordinateKey(box, static_cast<QKeyEvent *>(event))) {
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace gamutviewer
