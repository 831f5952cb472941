// SPDX-License-Identifier: MIT
#include "panel/sidepanel.h"

#include "display/chromaticity.h"
#include "display/whitepoint.h"
#include "editing/document.h"
#include "editing/gamutparts.h"
#include "editing/targetsession.h"
#include "panel/groupedtable.h"
#include "panel/signallog.h"
#include "panel/targeteditor.h"

#include <QLabel>
#include <QTabWidget>
#include <QVBoxLayout>

namespace gamutviewer {

namespace {

QString fixed(double value, int decimals = 4)
{
    return QString::number(value, 'f', decimals);
}

QStringList valueCells(Vertex vertex, const Model::Target &t)
{
    const QPointF uv = uvFromXy(xyOf(t));
    const auto temperature = colorTemperature(xyOf(t));
    return {vertexName(vertex), luminanceText(t.Y), fixed(t.x), fixed(t.y), fixed(uv.x()), fixed(uv.y()),
        temperature ? fixed(temperature->kelvin, 0) : undefinedText(),
        temperature ? duvText(*temperature) : undefinedText()};
}

QStringList coverageCells(const Model::ColorGamut &gamut, const Model::ColorGamut &standard)
{
    QStringList cells{QString::fromStdString(standard.colorGamutName())};
    for (const Model::Diagram diagram : {Model::Diagram::Cie1931, Model::Diagram::Cie1976}) {
        const Model::GamutCoverage c = Model::gamutCoverage(gamut.getTargets(), standard.getTargets(), diagram);
        cells << percent(c.coverage) << percent(c.areaRatio);
    }
    return cells;
}

} // namespace

SidePanel::SidePanel(TargetSession *session, QWidget *parent)
    : QWidget(parent)
    , m_document(session->document())
{
    auto *layout = new QVBoxLayout(this);
    m_editor = new TargetEditor(session, this);
    layout->addWidget(m_editor);
    m_validity = new QLabel(this);
    m_validity->setTextFormat(Qt::PlainText);
    m_validity->setWordWrap(true);
    m_validity->setAccessibleName(tr("Validity of the target"));
    layout->addWidget(m_validity);

    m_tabs = new QTabWidget(this);
    m_tabs->setDocumentMode(true);
    m_values
        = new GroupedTable({QString(), tr("Y"), tr("x"), tr("y"), tr("u′"), tr("v′"), tr("CCT"), tr("Duv")}, m_tabs);
    m_values->setAccessibleName(tr("Colours of all gamuts"));
    m_coverage
        = new GroupedTable({tr("Standard"), tr("xy cov."), tr("xy ratio"), tr("u′v′ cov."), tr("u′v′ ratio")}, m_tabs);
    m_coverage->setAccessibleName(tr("Coverage of the standards"));
    m_coverage->setToolTip(
        tr("Coverage: share of the standard's area that the gamut contains. Ratio: area of the gamut divided by that "
           "of the standard."));
    m_log = new SignalLog(m_tabs);
    m_tabs->addTab(m_values, tr("&Values"));
    m_tabs->addTab(m_coverage, tr("Covera&ge"));
    m_tabs->addTab(m_log, tr("Si&gnals"));
    layout->addWidget(m_tabs, 1);

    connect(m_document, &Document::changed, this, &SidePanel::refresh);
    refresh();
}

void SidePanel::refresh()
{
    refreshValidity();
    refreshValues();
    refreshCoverage();
}

void SidePanel::refreshValidity()
{
    const auto original = m_document->original();
    const auto target = m_document->target();
    if (!original || !target) {
        m_validity->clear();
        return;
    }
    const Model::PrimariesOutside outside = Model::primariesOutside(target->getTargets(), original->getTargets());
    QStringList names;
    for (const auto &primary : {std::make_pair(outside.red, Vertex::Red), std::make_pair(outside.green, Vertex::Green),
             std::make_pair(outside.blue, Vertex::Blue)}) {
        if (primary.first) {
            names.append(vertexName(primary.second));
        }
    }
    m_validity->setText(names.isEmpty()
            ? tr("✓ The display can show the target.")
            : tr("✗ Outside the original: %1").arg(names.join(tr(", ", "between names of colours"))));
}

void SidePanel::refreshValues()
{
    QVector<GroupedTable::Group> groups;
    for (const GamutPart &part : gamutParts(m_document->description())) {
        GroupedTable::Group group{part.title(), {}};
        for (const Vertex vertex : allVertices) {
            group.rows.append(valueCells(vertex, targetAt(part.gamut.getTargets(), vertex)));
        }
        groups.prepend(group);
    }
    m_values->setGroups(groups);
}

void SidePanel::refreshCoverage()
{
    const std::vector<Model::ColorGamut> standards = m_document->description().allStandards();
    QVector<GroupedTable::Group> groups;
    for (const GamutPart &part : gamutParts(m_document->description())) {
        GroupedTable::Group group{part.title(), {}};
        for (const Model::ColorGamut &standard : standards) {
            group.rows.append(coverageCells(part.gamut, standard));
        }
        groups.prepend(group);
    }
    m_coverage->setGroups(groups);
}

} // namespace gamutviewer
