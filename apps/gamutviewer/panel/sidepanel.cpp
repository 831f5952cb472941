// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "panel/sidepanel.h"

#include "display/chromaticity.h"
#include "display/valuetexts.h"
#include "editing/document.h"
#include "editing/gamutparts.h"
#include "editing/gamutroles.h"
#include "editing/targetsession.h"
#include "panel/groupedtable.h"
#include "panel/scaledfont.h"
#include "panel/targeteditor.h"
#include "panel/verdict.h"

#include <QPlainTextEdit>
#include <QTabWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>
#include <memory>

namespace gamutviewer {

namespace {

QStringList valueCells(Vertex vertex, const Model::Target &t)
{
    const QPointF uv = uvFromXy(xyOf(t));
    const auto temperature = ceiechart::colorTemperature(xyOf(t));
    return {ceiechart::gamutVertexName(vertex), luminanceText(t.Y), fixedText(t.x, 4), fixedText(t.y, 4),
        fixedText(uv.x(), 4), fixedText(uv.y(), 4), temperature ? fixedText(temperature->kelvin, 0) : undefinedText(),
        temperature ? duvText(*temperature) : undefinedText()};
}

constexpr Model::Diagram coverageDiagrams[] = {Model::Diagram::Cie1931, Model::Diagram::Cie1976};

//! The coverage of \a standard by \a gamut in column 1 or 3, or the ratio of their areas in column 2 or 4.
QString coverageCell(const Model::Targets &gamut, const Model::Targets &standard, int column)
{
    const Model::GamutCoverage c = Model::gamutCoverage(gamut, standard, coverageDiagrams[(column - 1) / 2]);
    return percent(column % 2 == 1 ? c.coverage : c.areaRatio);
}

//! For each column of the coverage of \a standards by \a gamut a text as wide as the widest.
QStringList widestCoverage(const Model::Targets &gamut, const std::vector<DisplayGamut> &standards)
{
    QStringList widest{QString()};
    for (const Model::Diagram diagram : coverageDiagrams) {
        const double area = Model::gamutArea(gamut, diagram);
        double largest = 0.0;
        for (const DisplayGamut &standard : standards) {
            const double ratio = area / Model::gamutArea(standard.getTargets(), diagram);
            largest = std::isfinite(ratio) ? std::max(largest, ratio) : largest;
        }
        widest << percent(1.0) << percent(largest);
    }
    return widest;
}

QStringList hueCells(Vertex vertex, const Model::Targets &targets)
{
    const Model::Target &t = targetAt(targets, vertex);
    const auto hue = Model::dominantWavelength({t.x, t.y}, {targets.white.x, targets.white.y});
    return {ceiechart::gamutVertexName(vertex), hue ? wavelengthText(*hue) : undefinedText(),
        hue ? purityText(*hue) : undefinedText()};
}

void appendNotKnown(QVector<GroupedTable::Group> &groups, const DisplayDescription &description)
{
    for (const GamutRole role : {GamutRole::Target, GamutRole::Original}) {
        if (!description.gamut(gamutInRole(description, role))) {
            groups.append({notKnownTitle(role), {}});
        }
    }
}

} // namespace

SidePanel::SidePanel(TargetSession *session, QWidget *parent)
    : QWidget(parent)
    , m_document(session->document())
{
    setFont(scaledFont(font(), 0.9));
    auto *layout = new QVBoxLayout(this);
    m_verdict = new Verdict(session, this);
    layout->addWidget(m_verdict);
    m_editor = new TargetEditor(session, this);
    layout->addWidget(m_editor);

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
    m_hues = new GroupedTable({QString(), tr("Dominant wavelength in nm"), tr("Excitation purity")}, m_tabs);
    m_hues->setAccessibleName(tr("Dominant wavelengths of all gamuts"));
    m_hues->setToolTip(tr("Relative to the white of the same gamut, which stands in its title. The wavelength of a "
                          "purple is the complementary one, with a minus sign."));
    m_tabs->addTab(m_values, tr("V&alues"));
    m_tabs->addTab(m_coverage, tr("Covera&ge"));
    m_tabs->addTab(m_hues, tr("H&ue"));
    m_files = new QPlainTextEdit(m_tabs);
    m_files->setReadOnly(true);
    m_files->setTabChangesFocus(true);
    m_files->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_files->setFrameShape(QFrame::NoFrame);
    m_files->setAccessibleName(tr("What the files say"));
    m_tabs->addTab(m_files, tr("File&s"));
    m_tabs->setTabToolTip(m_tabs->indexOf(m_files), m_files->accessibleName());
    layout->addWidget(m_tabs, 1);

    connect(m_document, &Document::changed, this, &SidePanel::refresh);
    connect(m_tabs, &QTabWidget::currentChanged, this, [this] {
        if (m_coverageIsStale && m_tabs->currentWidget() == m_coverage) {
            m_coverageIsStale = false;
            refreshCoverage();
        }
    });
    refresh();
    setFileNotes({});
}

void SidePanel::setFileNotes(const FileNotes &notes)
{
    m_notes = notes;
    m_files->setPlainText(fileNotesText(m_notes));
    m_tabs->setTabVisible(m_tabs->indexOf(m_files), !m_notes.isEmpty());
}

void SidePanel::addFileNotes(const FileNotes &notes)
{
    FileNotes all = m_notes;
    setFileNotes(all += notes);
}

void SidePanel::refresh()
{
    refreshValues();
    refreshHues();
    // Thousands of rows take longer than an edit may, and a hidden table is not read.
    constexpr int mostHidden = 500;
    m_coverageIsStale
        = m_tabs->currentWidget() != m_coverage && m_document->description().standards.size() > mostHidden;
    if (!m_coverageIsStale) {
        refreshCoverage();
    }
}

void SidePanel::refreshValues()
{
    QVector<GroupedTable::Group> groups;
    for (const GamutPart &part : gamutParts(m_document->description())) {
        GroupedTable::Group group{tr("%1 – Y: %2", "gamut and the unit of its luminances")
                                      .arg(part.title(), luminanceUnitText(part.gamut.unit)),
            {}};
        for (const Vertex vertex : allVertices) {
            group.rows.append(valueCells(vertex, targetAt(part.gamut.getTargets(), vertex)));
        }
        groups.prepend(group);
    }
    appendNotKnown(groups, m_document->description());
    m_values->setGroups(groups);
}

void SidePanel::refreshCoverage()
{
    const auto standards = std::make_shared<const std::vector<DisplayGamut>>(m_document->description().allStandards());
    QVector<QStringList> names;
    names.reserve(int(standards->size()));
    for (const DisplayGamut &standard : *standards) {
        names.append(QStringList{nameOf(standard)});
    }
    QVector<GroupedTable::Group> groups;
    for (const GamutPart &part : gamutParts(m_document->description())) {
        const Model::Targets targets = part.gamut.getTargets();
        const auto text = [standards, targets](int row, int column) {
            return coverageCell(targets, standards->at(std::size_t(row)).getTargets(), column);
        };
        groups.prepend({part.title(), names, text, widestCoverage(targets, *standards)});
    }
    appendNotKnown(groups, m_document->description());
    m_coverage->setGroups(groups);
}

void SidePanel::refreshHues()
{
    QVector<GroupedTable::Group> groups;
    for (const GamutPart &part : gamutParts(m_document->description())) {
        const Model::Targets &targets = part.gamut.getTargets();
        GroupedTable::Group group{tr("%1 – white: %2, %3", "gamut and its reference white")
                                      .arg(part.title(), fixedText(targets.white.x, chromaticityDecimals),
                                          fixedText(targets.white.y, chromaticityDecimals)),
            {}};
        for (const Vertex vertex : allVertices) {
            group.rows.append(hueCells(vertex, targets));
        }
        groups.prepend(group);
    }
    m_hues->setGroups(groups);
}

} // namespace gamutviewer
