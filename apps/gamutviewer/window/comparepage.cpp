// SPDX-License-Identifier: MIT
#include "window/comparepage.h"

#include "display/chromaticity.h"
#include "display/whitepoint.h"
#include "drawing/diagramkey.h"
#include "drawing/gamutdiagram.h"
#include "editing/document.h"
#include "editing/targetsession.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QTableWidget>
#include <QVBoxLayout>

namespace gamutviewer {

namespace {

enum Row { RedRow, GreenRow, BlueRow, WhiteRow, TemperatureRow, DuvRow, LuminanceRow, AreaXyRow, AreaUvRow, RowCount };

QString pairText(const QPointF &point)
{
    return QStringLiteral("%1, %2").arg(point.x(), 0, 'f', 4).arg(point.y(), 0, 'f', 4);
}

} // namespace

double lostShare(const Model::Targets &original, const Model::Targets &target, Model::Diagram diagram)
{
    const double area = Model::gamutArea(original, diagram);
    return area > 0.0 ? 1.0 - Model::commonArea(original, target, diagram) / area : 0.0;
}

ComparePage::ComparePage(Document *document, QWidget *parent)
    : Page(document, parent)
{
    auto *layout = new QVBoxLayout(this);
    m_table = new QTableWidget(RowCount, 0, this);
    m_table->setAccessibleName(tr("Gamuts side by side"));
    m_table->setVerticalHeaderLabels({tr("Red"), tr("Green"), tr("Blue"), tr("White"), tr("CCT"), tr("Duv"),
        tr("Luminance"), tr("Area x, y"), tr("Area u′, v′")});
    QFont small = font();
    small.setPointSizeF(small.pointSizeF() * 0.85);
    m_table->setFont(small);
    m_table->horizontalHeader()->setFont(small);
    m_table->verticalHeader()->setFont(small);
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setTabKeyNavigation(false);
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

    auto *diagrams = new QHBoxLayout;
    m_xy = new GamutDiagram(Model::Diagram::Cie1931, this);
    m_uv = new GamutDiagram(Model::Diagram::Cie1976, this);
    for (GamutDiagram *diagram : {m_xy, m_uv}) {
        diagrams->addWidget(diagram);
        connect(diagram, &GamutDiagram::pointedAt, this, &Page::pointedAt);
    }
    layout->addLayout(diagrams, 1);
    m_key = new DiagramKey(this);
    layout->addWidget(m_key);
    setFocusProxy(m_table);
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
    m_table->setColumnCount(parts.size());
    for (int column = 0; column < parts.size(); ++column) {
        const GamutPart &part = parts.at(column);
        auto *header = new QTableWidgetItem(part.roleName());
        header->setToolTip(part.title());
        m_table->setHorizontalHeaderItem(column, header);
        const Model::Targets &t = part.gamut.getTargets();
        for (const Vertex vertex : allVertices) {
            setCell(RedRow + int(vertex), column, pairText(xyOf(targetAt(t, vertex))));
        }
        const auto white = colorTemperature(xyOf(t.white));
        setCell(TemperatureRow, column, white ? temperatureText(*white) : undefinedText());
        setCell(DuvRow, column, white ? duvText(*white) : undefinedText());
        setCell(LuminanceRow, column, luminanceText(t.white.Y));
        setCell(AreaXyRow, column, QString::number(Model::gamutArea(t, Model::Diagram::Cie1931), 'f', 5));
        setCell(AreaUvRow, column, QString::number(Model::gamutArea(t, Model::Diagram::Cie1976), 'f', 5));
    }

    m_table->setFixedHeight(m_table->horizontalHeader()->sizeHint().height() + m_table->verticalHeader()->length()
        + 2 * m_table->frameWidth());

    const auto original = document()->original();
    const auto target = document()->target();
    m_loss->setVisible(original && target);
    if (original && target) {
        m_loss->setText(
            tr("The target leaves %1 of the original's area in x, y and %2 in u′, v′ unused (hatched).")
                .arg(percent(lostShare(original->getTargets(), target->getTargets(), Model::Diagram::Cie1931)),
                    percent(lostShare(original->getTargets(), target->getTargets(), Model::Diagram::Cie1976))));
    }
    QVector<KeyEntry> key;
    for (const GamutPart &part : parts) {
        KeyEntry entry;
        entry.name = part.roleName();
        entry.pen = partPen(part.role, palette());
        key.append(entry);
    }
    m_key->setEntries(key);
    m_xy->setParts(parts);
    m_uv->setParts(parts);
}

} // namespace gamutviewer
