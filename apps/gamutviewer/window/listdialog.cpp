// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "window/listdialog.h"

#include "display/messages.h"
#include "display/valuetexts.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QFormLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>
#include <new>

namespace gamutviewer {

namespace {

// What is not the line of a measurement.
constexpr int asRecognized = 0;
constexpr int sumOfPrimaries = -1;
constexpr int wallRole = Qt::UserRole + 1; // of the whole wall among the cabinets

constexpr QChar signs[] = {QLatin1Char('.'), QLatin1Char(',')};

MeasurementChoice &choiceOf(MeasurementOptions &options, Vertex vertex)
{
    switch (vertex) {
    case Vertex::Red:
        return options.red;
    case Vertex::Green:
        return options.green;
    case Vertex::Blue:
        return options.blue;
    case Vertex::White:
        break;
    }
    return options.white;
}

//! What tells \a measurement, which has a chromaticity, from others.
QString nameOf(const Measurement &measurement)
{
    return measurement.name.isEmpty()
        ? QStringLiteral("x %1, y %2").arg(fixedText(measurement.color->x, 4), fixedText(measurement.color->y, 4))
        : oneLine(measurement.name);
}

//! Thrown through the event loop, a lack of memory would end the program, and with it what is open.
Outcome<GamutFile> readOrFailure(const QString &fileName, const MeasurementOptions &options)
{
    try {
        return readGamutFile(fileName, options);
    } catch (const std::bad_alloc &) {
        return Outcome<GamutFile>::failure(memoryIsShort());
    }
}

} // namespace

bool ListDialog::canReadAgain(const QString &fileName)
{
    return !isStandardInput(fileName) && QFileInfo(fileName).isFile();
}

bool ListDialog::canHelp(const QString &fileName, const MeasurementOptions &options, const Outcome<GamutFile> &read)
{
    if (!canReadAgain(fileName)) {
        return false;
    }
    if (read) {
        return needsChoice(*read);
    }
    if (options.decimalSign) {
        return false;
    }
    // It may have two readings, of which one has to be chosen.
    MeasurementOptions other = options;
    for (const QChar sign : signs) {
        other.decimalSign = sign;
        const Outcome<GamutFile> again = readGamutFile(fileName, other);
        if (again && again->content == GamutFile::Content::Measurements) {
            return true;
        }
    }
    return false;
}

ListDialog::ListDialog(const QString &fileName, const MeasurementOptions &options, QWidget *parent)
    : QDialog(parent)
    , m_fileName(fileName)
    , m_options(options)
    , m_read(readOrFailure(fileName, options))
{
    setWindowTitle(tr("Measurement list"));
    auto *layout = new QVBoxLayout(this);
    m_question = new QLabel(this);
    m_question->setTextFormat(Qt::PlainText);
    m_question->setWordWrap(true);
    m_question->setText(questionText());
    layout->addWidget(m_question);
    auto *form = new QFormLayout;
    layout->addLayout(form);
    m_unit = new QComboBox(this);
    m_unit->addItem(tr("as the list says"), int(MeasuredUnit::NotStated));
    m_unit->addItem(tr("cd/m²"), int(MeasuredUnit::CandelaPerSquareMetre));
    m_unit->addItem(tr("foot-lambert"), int(MeasuredUnit::FootLambert));
    m_unit->addItem(tr("relative"), int(MeasuredUnit::Relative));
    form->addRow(tr("&Unit of the luminances:"), m_unit);
    m_decimalSign = new QComboBox(this);
    m_decimalSign->addItem(tr("as recognised"), QString());
    m_decimalSign->addItem(tr("point"), QString(signs[0]));
    m_decimalSign->addItem(tr("comma"), QString(signs[1]));
    form->addRow(tr("&Decimal sign:"), m_decimalSign);
    m_cabinet = new QComboBox(this);
    m_cabinet->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_cabinet->setMinimumContentsLength(30);
    m_cabinetLabel = new QLabel(tr("C&abinet:"), this);
    m_cabinetLabel->setBuddy(m_cabinet);
    form->addRow(m_cabinetLabel, m_cabinet);
    for (const Vertex vertex : allVertices) {
        auto *box = new QComboBox(this);
        box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        box->setMinimumContentsLength(30);
        form->addRow(tr("%1:", "colour").arg(ceiechart::gamutVertexName(vertex)), box);
        m_choices.append(box);
    }
    m_preview = new QPlainTextEdit(this);
    m_preview->setReadOnly(true);
    m_preview->setTabChangesFocus(true);
    m_preview->setAccessibleName(tr("How the list is understood"));
    layout->addWidget(m_preview, 1);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    m_use = buttons->addButton(tr("&Use"), QDialogButtonBox::AcceptRole);
    m_use->setDefault(true);
    layout->addWidget(buttons);
    fillCabinets();
    fillChoices();
    m_choices.append(m_unit);
    m_choices.append(m_decimalSign);
    m_choices.append(m_cabinet);
    for (QComboBox *box : qAsConst(m_choices)) {
        connect(box, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &ListDialog::take);
    }
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    resize(520, 460);
    readAsChosen();
    refresh();
}

QString ListDialog::questionText() const
{
    const QString name = oneLine(QFileInfo(m_fileName).fileName());
    if (m_read && !needsChoice(*m_read)) {
        return tr("How is %1 to be read?").arg(name);
    }
    const bool hasUnit = m_read && m_read->measurements.recognized.unit != MeasuredUnit::NotKnown;
    const int cabinets = hasUnit ? m_read->measurements.cabinets().size() : 0;
    if (cabinets > 1 && wallFromMeasurements(m_read->measurements)) { // which is all there
        return tr("%1 has measurements of %2 cabinets. What is to be made of them?")
            .arg(name, QString::number(cabinets));
    }
    return tr("%1 does not say all of what it means. What is known of it?").arg(name);
}

void ListDialog::fillCabinets()
{
    // What is chosen leaves the others out, so the list is read as a whole.
    MeasurementOptions whole = m_options;
    whole.cabinet.clear();
    for (MeasurementChoice *choice : {&whole.red, &whole.green, &whole.blue, &whole.white}) {
        *choice = MeasurementChoice();
    }
    const Outcome<GamutFile> read = m_options.cabinet.isEmpty() ? m_read : readOrFailure(m_fileName, whole);
    const QSignalBlocker blocker(m_cabinet);
    const QVariant before = m_cabinet->count() > 0 ? m_cabinet->currentData() : QVariant(m_options.cabinet);
    m_cabinet->clear();
    const auto wall = read && read->content == GamutFile::Content::Measurements
        ? std::make_optional(wallFromMeasurements(read->measurements))
        : std::nullopt;
    if (wall && *wall) {
        m_cabinet->addItem(
            tr("the whole wall, %1 cabinets").arg((*wall)->cabinets.size() + (*wall)->incomplete.size()), QString());
        m_cabinet->setItemData(0, true, wallRole);
    } else {
        m_cabinet->addItem(tr("all of them, which make no gamut"), QString());
    }
    if (read) {
        for (const CabinetMeasurements &cabinet : read->measurements.cabinets()) {
            if (!cabinet.label().isEmpty()) {
                m_cabinet->addItem(oneLine(cabinet.label()), cabinet.label());
            }
        }
    }
    const int chosen = m_cabinet->findData(before, Qt::UserRole, Qt::MatchFixedString);
    m_cabinet->setCurrentIndex(chosen < 0 ? 0 : chosen);
    const bool isChoice = m_cabinet->count() > 2;
    m_cabinet->setVisible(isChoice);
    m_cabinetLabel->setVisible(isChoice);
}

void ListDialog::fillChoices()
{
    for (const Vertex vertex : allVertices) {
        QComboBox *box = choice(vertex);
        const QSignalBlocker blocker(box);
        const QVariant before = box->currentData();
        box->clear();
        box->addItem(tr("as recognised"), asRecognized);
        if (vertex == Vertex::White) {
            box->addItem(tr("sum of red, green and blue"), sumOfPrimaries);
        }
        if (m_read) {
            for (const Measurement &measurement : m_read->measurements.measurements) {
                if (measurement.color) {
                    box->addItem(tr("line %1: %2").arg(measurement.line).arg(nameOf(measurement)), measurement.line);
                }
            }
        }
        const int chosen = box->findData(before);
        box->setCurrentIndex(chosen < 0 ? 0 : chosen);
    }
}

bool ListDialog::isWall() const
{
    return m_read && m_options.isWall;
}

void ListDialog::take()
{
    m_options.unit.reset();
    const auto unit = MeasuredUnit(m_unit->currentData().toInt());
    if (unit != MeasuredUnit::NotStated) {
        m_options.unit = unit;
    }
    m_options.decimalSign.reset();
    const QString sign = m_decimalSign->currentData().toString();
    if (!sign.isEmpty()) {
        m_options.decimalSign = sign.at(0);
    }
    m_options.cabinet = m_cabinet->currentData().toString();
    for (const Vertex vertex : allVertices) {
        const int line = choice(vertex)->currentData().toInt();
        choiceOf(m_options, vertex) = {std::max(line, 0), QString()};
    }
    m_options.whiteIsSum = choice(Vertex::White)->currentData().toInt() == sumOfPrimaries;
    m_read = readOrFailure(m_fileName, m_options);
    fillCabinets();
    readAsChosen();
    fillChoices();
    refresh();
}

//! Reads the list again if it turns out to make a wall, or to make none: what is missing for one gamut is no matter
//! then.
void ListDialog::readAsChosen()
{
    const bool makesWall = m_cabinet->count() > 2 && m_cabinet->currentData(wallRole).toBool();
    if (m_options.isWall != makesWall) {
        m_options.isWall = makesWall;
        m_read = readOrFailure(m_fileName, m_options);
    }
}

void ListDialog::refresh()
{
    QStringList lines;
    if (!m_read) {
        lines.append(tr("Cannot be read so: %1").arg(m_read.error()));
    } else {
        const bool makesWall = isWall();
        lines.append(makesWall     ? tr("The list makes a wall.")
                : gamutOf(*m_read) ? tr("The list makes a gamut.")
                                   : tr("The list makes no gamut, only points."));
        QVector<Problem> warnings = m_read.warnings();
        if (makesWall) {
            warnings += wallFromMeasurements(m_read->measurements).warnings();
        }
        for (const Problem &warning : qAsConst(warnings)) {
            lines.append(QStringLiteral("⚠ %1").arg(warning.message()));
        }
        lines.append(QString());
        lines.append(m_read->measurements.recognized.text());
    }
    m_preview->setPlainText(lines.join(QLatin1Char('\n')));
    m_use->setEnabled(bool(m_read));
}

} // namespace gamutviewer
