// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "window/comparepage.h"

#include "display/valuetexts.h"
#include "drawing/documentview.h"
#include "drawing/layerswitches.h"
#include "editing/document.h"
#include "editing/gamutparts.h"
#include "editing/gamutroles.h"
#include "editing/targetsession.h"
#include "panel/copytable.h"
#include "panel/plaintooltip.h"
#include "panel/scaledfont.h"

#include <gamutmodel/gamutcoverage.h>

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QVBoxLayout>

namespace gamutviewer {

namespace {

enum Row { RedRow, GreenRow, BlueRow, WhiteRow, TemperatureRow, DuvRow, LuminanceRow, AreaXyRow, AreaUvRow, RowCount };

QString namesOf(const QVector<GamutRole> &roles)
{
    QStringList names;
    for (const GamutRole role : roles) {
        names.append(ceiechart::gamutRoleName(role));
    }
    return names.join(QStringLiteral(", "));
}

QString pairText(const QPointF &point)
{
    return QStringLiteral("%1, %2").arg(fixedText(point.x(), 4), fixedText(point.y(), 4));
}

} // namespace

ComparePage::ComparePage(TargetSession *session, QWidget *parent)
    : Page(session->document(), parent)
{
    auto *layout = new QVBoxLayout(this);
    m_table = new CopyTable(RowCount, 0, this);
    m_table->setAccessibleName(tr("Gamuts side by side"));
    m_table->setVerticalHeaderLabels({tr("Red"), tr("Green"), tr("Blue"), tr("White"), tr("CCT"), tr("Duv"),
        tr("Luminance"), tr("Area x, y"), tr("Area u′, v′")});
    const QFont small = scaledFont(font(), 0.85);
    m_table->setFont(small);
    m_table->horizontalHeader()->setFont(small);
    m_table->verticalHeader()->setFont(small);
    m_table->setSelectionBehavior(QAbstractItemView::SelectColumns);
    m_table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    m_table->horizontalHeader()->setHighlightSections(false);
    m_table->verticalHeader()->setHighlightSections(false);
    m_table->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 2);
    m_table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    m_table->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    layout->addWidget(m_table);

    m_loss = new QLabel(this);
    m_loss->setAccessibleName(tr("Part of the original that the target does not use"));
    m_loss->setWordWrap(true);
    m_loss->setTextFormat(Qt::PlainText);
    m_loss->setTextInteractionFlags(Qt::TextSelectableByMouse);
    layout->addWidget(m_loss);

    using ceiechart::DiagramLayer;
    m_switches = new LayerSwitches(this);
    LayerSwitches::State state;
    state.layers &= ~(DiagramLayer::Isotherms | DiagramLayer::Wavelengths | DiagramLayer::Rings | DiagramLayer::Trail
        | DiagramLayer::Standards);
    m_switches->setState(state);
    m_switches->setShowsDefaultTarget(false);
    auto *diagrams = new QHBoxLayout;
    m_xy = new DocumentView(session, m_switches, this);
    m_xy->setAccessibleName(tr("CIE 1931 x, y diagram"));
    m_uv = new DocumentView(session, m_switches, this);
    m_uv->setAccessibleName(tr("CIE 1976 u′, v′ diagram"));
    m_uv->setDiagram(ceiechart::DiagramView::Cie1976);
    for (DocumentView *diagram : {m_xy, m_uv}) {
        diagram->setReadOnly(true);
        diagrams->addWidget(diagram);
        readOut(diagram);
    }
    layout->addLayout(diagrams, 1);
    setFocusInside(m_table);
}

void ComparePage::setCell(int row, int column, const QString &text)
{
    QTableWidgetItem *cell = m_table->item(row, column);
    if (!cell) {
        cell = new QTableWidgetItem;
        cell->setTextAlignment(Qt::AlignCenter);
        m_table->setItem(row, column, cell);
    }
    cell->setText(text);
}

void ComparePage::refresh()
{
    const QVector<GamutPart> parts = gamutParts(document()->description());
    const DisplayDescription &description = document()->description();
    QVector<GamutRole> missing;
    for (const GamutRole role : {GamutRole::Original, GamutRole::Target}) {
        if (!description.gamut(gamutInRole(description, role))) {
            missing.append(role);
        }
    }
    m_table->setColumnCount(parts.size() + missing.size());
    for (int column = 0; column < parts.size(); ++column) {
        const GamutPart &part = parts.at(column);
        auto *header = new QTableWidgetItem(part.title());
        header->setToolTip(plainToolTip(part.title()));
        m_table->setHorizontalHeaderItem(column, header);
        const Model::Targets &t = part.gamut.getTargets();
        for (const Vertex vertex : allVertices) {
            setCell(RedRow + int(vertex), column, pairText(xyOf(targetAt(t, vertex))));
        }
        const auto white = ceiechart::colorTemperature(xyOf(t.white));
        setCell(TemperatureRow, column, white ? temperatureText(*white) : undefinedText());
        setCell(DuvRow, column, white ? duvText(*white) : undefinedText());
        setCell(LuminanceRow, column, luminanceText(t.white.Y, part.gamut.unit));
        setCell(AreaXyRow, column, QString::number(Model::gamutArea(t, Model::Diagram::Cie1931), 'f', 5));
        setCell(AreaUvRow, column, QString::number(Model::gamutArea(t, Model::Diagram::Cie1976), 'f', 5));
    }
    for (int i = 0; i < missing.size(); ++i) {
        const int column = parts.size() + i;
        m_table->setHorizontalHeaderItem(column, new QTableWidgetItem(notKnownTitle(missing.at(i))));
        for (int row = 0; row < RowCount; ++row) {
            setCell(row, column, undefinedText());
        }
    }

    m_table->setFixedHeight(m_table->horizontalHeader()->sizeHint().height() + m_table->verticalHeader()->length()
        + 2 * m_table->frameWidth());

    const auto original = document()->original();
    const auto target = description.gamut(description.target);
    if (!original || !target) {
        m_loss->setText(tr("What the target leaves unused of the original is not known. Missing: %1", "names of roles")
                            .arg(namesOf(missing)));
    } else {
        m_loss->setText(
            tr("The target leaves %1 of the original's area in x, y and %2 in u′, v′ unused (hatched).")
                .arg(percent(lostShare(original->getTargets(), target->getTargets(), Model::Diagram::Cie1931)),
                    percent(lostShare(original->getTargets(), target->getTargets(), Model::Diagram::Cie1976))));
    }
    m_xy->refresh();
    m_uv->refresh();
}

} // namespace gamutviewer
