// SPDX-License-Identifier: MIT
#include "targeteditor.h"

#include "chromaticity.h"
#include "document.h"
#include "targetsession.h"
#include "whitepoint.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QFontMetrics>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QSignalBlocker>
#include <QStyle>
#include <QStyleOptionSpinBox>
#include <QToolButton>
#include <QVBoxLayout>

#include <cmath>

namespace gamutviewer {

namespace {

constexpr int chromaticityDecimals = 4;
constexpr double chromaticityStep = 0.001;
constexpr double highestLuminance = 1e6;
constexpr double mostDuv = 0.05;

void showValue(StepBox *box, double value)
{
    const QSignalBlocker blocker(box);
    box->setValue(value);
}

//! Luminances are relative (a white of 1) or in cd/m²: as many decimals as either needs.
int luminanceDecimals(double luminance)
{
    return luminance < 10.0 ? 4 : 2;
}

} // namespace

StepBox::StepBox(QWidget *parent)
    : QDoubleSpinBox(parent)
{
    // An edit is made when the number is complete.
    setKeyboardTracking(false);
    setAccelerated(true);
    setAlignment(Qt::AlignRight);
}

void StepBox::stepBy(int steps)
{
    if (QApplication::keyboardModifiers() & Qt::ShiftModifier) {
        const double step = singleStep();
        setSingleStep(step / 10.0);
        QDoubleSpinBox::stepBy(steps);
        setSingleStep(step);
    } else {
        QDoubleSpinBox::stepBy(steps);
    }
}

QSize StepBox::sizeHint() const
{
    // The range of luminances is wide; what is usual must fit.
    const QSize text(fontMetrics().horizontalAdvance(QStringLiteral("1000.0000")), QDoubleSpinBox::sizeHint().height());
    QStyleOptionSpinBox option;
    initStyleOption(&option);
    return QSize(style()->sizeFromContents(QStyle::CT_SpinBox, &option, text, this).width(), text.height());
}

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
    m_reset->setToolTip(tr("Put a standard or a gamut of this display in place of the target"));
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
    m_holdWhite = addRule(rules, tr("&Hold white"), tr("Moved primaries leave the white where it is"));
    m_lockPrimaries = addRule(rules, tr("&Lock primaries"), tr("Only the white can be moved"));
    m_snap = addRule(rules, tr("S&nap"), tr("Dragged points snap to those of standards and of the original"));
    rules->addStretch();

    connect(m_holdWhite, &QCheckBox::toggled, session, &TargetSession::setHoldWhite);
    connect(m_lockPrimaries, &QCheckBox::toggled, session, &TargetSession::setLockPrimaries);
    connect(m_snap, &QCheckBox::toggled, session, &TargetSession::setSnaps);
    connect(m_coordinates, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &TargetEditor::refresh);
    connect(m_resetMenu, &QMenu::aboutToShow, this, &TargetEditor::fillResetMenu);
    connect(session->document(), &Document::changed, this, &TargetEditor::refresh);
    connect(session, &TargetSession::rulesChanged, this, &TargetEditor::refreshRules);
    connect(session, &TargetSession::selectionChanged, this, &TargetEditor::refresh);
    // What was typed and refused gives way to what is.
    connect(session, &TargetSession::refused, this, &TargetEditor::refresh);
    refresh();
    refreshRules();
}

void TargetEditor::buildHeader(QGridLayout *grid)
{
    m_coordinates = new QComboBox(this);
    m_coordinates->addItems({tr("x, y"), tr("u′, v′")});
    m_coordinates->setToolTip(tr("Coordinates to show and to edit"));
    m_coordinates->setAccessibleName(tr("Coordinates"));
    grid->addWidget(m_coordinates, 0, 0);
    m_firstHeader = new QLabel(this);
    m_secondHeader = new QLabel(this);
    auto *luminance = new QLabel(tr("Y"), this);
    luminance->setToolTip(tr("Luminance"));
    int column = 1;
    for (QLabel *header : {m_firstHeader, m_secondHeader, luminance}) {
        header->setAlignment(Qt::AlignCenter);
        grid->addWidget(header, 0, column++);
    }
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
    const QString name = vertexName(vertex);
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
    const auto editXy = [this, vertex](int mergeKey) { editChromaticity(vertex, mergeKey); };
    connectBox(row.first, vertex, editXy);
    connectBox(row.second, vertex, editXy);
    connectBox(row.luminance, vertex,
        [this, vertex](int mergeKey) { m_session->setLuminance(vertex, luminance(vertex)->value(), mergeKey); });
}

void TargetEditor::buildTemperature(QGridLayout *grid)
{
    constexpr int line = 5;
    auto *label = new QLabel(tr("CCT, Duv"), this);
    label->setToolTip(tr("Correlated colour temperature of the white, and its distance from the Planckian locus"));
    m_temperature = addBox(1000.0, 100000.0, 0, 10.0, tr("white: colour temperature"));
    m_temperature->setSuffix(tr(" K"));
    m_duv = addBox(-mostDuv, mostDuv, 4, 0.001, tr("white: Duv"));
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
    m_name->setText(target ? shownGamutName(m_session->document()->description().target) : tr("No target"));
    m_name->setToolTip(m_name->text());
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
        row.first->setAccessibleName(tr("%1: %2").arg(vertexName(vertex), m_firstHeader->text()));
        row.second->setAccessibleName(tr("%1: %2").arg(vertexName(vertex), m_secondHeader->text()));
        showValue(row.first, shown.x());
        showValue(row.second, shown.y());
        const QSignalBlocker blocker(row.luminance);
        row.luminance->setDecimals(luminanceDecimals(targets.white.Y));
        row.luminance->setSingleStep(targets.white.Y < 10.0 ? 0.01 : 1.0);
        row.luminance->setValue(t.Y);
    }
    const ColorTemperature white = colorTemperature(xyOf(targets.white)).value_or(ColorTemperature());
    showValue(m_temperature, white.kelvin);
    showValue(m_duv, white.duv);
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
    for (const Model::ColorGamut &standard : Model::standardGamuts()) {
        names.append(QString::fromStdString(standard.colorGamutName()));
    }
    for (const Model::ColorGamut &gamut : description.gamuts) {
        names.append(QString::fromStdString(gamut.colorGamutName()));
    }
    names.removeDuplicates();
    for (const QString &name : qAsConst(names)) {
        if (name != description.target) {
            QString text = shownGamutName(name);
            QAction *action = m_resetMenu->addAction(text.replace(QLatin1Char('&'), QLatin1String("&&")));
            connect(action, &QAction::triggered, m_session, [this, name] { m_session->reset(name); });
        }
    }
}

void TargetEditor::editChromaticity(Vertex vertex, int mergeKey)
{
    const auto target = m_session->document()->target();
    if (!target) {
        return;
    }
    // Only what was edited is taken from its field: the other coordinate may have more digits than are shown.
    const QPointF xy = xyOf(targetAt(target->getTargets(), vertex));
    QPointF edited = showsUv() ? uvFromXy(xy) : xy;
    if (sender() == firstCoordinate(vertex)) {
        edited.setX(firstCoordinate(vertex)->value());
    } else {
        edited.setY(secondCoordinate(vertex)->value());
    }
    m_session->setChromaticity(vertex, showsUv() ? xyFromUv(edited) : edited, mergeKey);
}

void TargetEditor::editTemperature(int mergeKey)
{
    const auto target = m_session->document()->target();
    if (!target) {
        return;
    }
    const ColorTemperature white = colorTemperature(xyOf(target->getTargets().white)).value_or(ColorTemperature());
    const bool isTemperature = sender() == m_temperature;
    m_session->setWhiteTemperature(
        isTemperature ? m_temperature->value() : white.kelvin, isTemperature ? white.duv : m_duv->value(), mergeKey);
}

bool TargetEditor::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusIn) {
        m_session->select(Vertex(watched->property("vertex").toInt()));
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace gamutviewer
