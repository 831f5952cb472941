// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "panel/wallverdict.h"

#include "display/wallassessmenttexts.h"
#include "editing/document.h"
#include "editing/targetsession.h"

#include <QHBoxLayout>
#include <QListWidget>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace gamutviewer {

namespace {

constexpr int linesWithoutScrolling = 4;
constexpr std::size_t mostToLeaveOut = 2;

QString buttonText(QString text)
{
    return text.replace(QLatin1Char('&'), QLatin1String("&&"));
}

} // namespace

WallVerdict::WallVerdict(TargetSession *session, QWidget *parent)
    : VerdictFrame(linesWithoutScrolling, parent)
    , m_session(session)
{
    lines()->setAccessibleName(tr("Grounds of the verdict on the wall"));
    lines()->setAccessibleDescription(tr("Return selects the cabinet of a line"));
    auto *ways = new QHBoxLayout;
    ways->setSpacing(4);
    column()->addLayout(ways);
    const auto addWay = [&](const QString &text) {
        auto *button = new QToolButton(this);
        button->setText(text);
        button->setFont(lines()->font());
        button->setFocusPolicy(Qt::StrongFocus);
        ways->addWidget(button);
        return button;
    };
    m_fit = addWay(tr("Fit target to the wall"));
    m_fit->setToolTip(tr("Moves each primary towards the white until all cabinets show it, and lowers the luminance of "
                         "the white to what all reach"));
    m_without = addWay(tr("Without the cabinet"));
    m_without->setToolTip(tr("Judges the wall without the cabinet; its corrections are still made"));
    m_again = addWay(tr("Count all again"));
    m_again->setToolTip(tr("Judges the wall with all of its cabinets"));
    m_export = addWay(tr("Export corrections…"));
    m_export->setToolTip(tr("Writes the matrix of each cabinet to a file"));
    ways->addStretch();
    connect(m_fit, &QToolButton::clicked, session, &TargetSession::fitToWall);
    connect(m_without, &QToolButton::clicked, this, [this] { m_session->setLeftOut(cabinetsToLeaveOut(), true); });
    connect(m_again, &QToolButton::clicked, this, [this] {
        std::vector<std::size_t> all(m_session->document()->description().wall.cabinets.size());
        for (std::size_t i = 0; i < all.size(); ++i) {
            all[i] = i;
        }
        m_session->setLeftOut(all, false);
    });
    connect(m_export, &QToolButton::clicked, this, &WallVerdict::exportWanted);
    connect(this, &WallVerdict::chosen, this,
        [this](const QVariant &cabinet) { m_session->selectCabinet(std::size_t(cabinet.toULongLong())); });
    refresh();
}

std::vector<std::size_t> WallVerdict::cabinetsToLeaveOut() const
{
    std::vector<std::size_t> found;
    const auto &wall = m_session->assessment().wall;
    if (!wall) {
        return found;
    }
    for (const std::size_t cabinet : wall->worstFirst) {
        const CabinetAssessment &of = wall->cabinets[cabinet];
        if (!of.isLeftOut && of.judgement == Judgement::Fail) {
            found.push_back(cabinet);
        }
    }
    // One has to be left.
    const auto counted = std::count_if(wall->cabinets.begin(), wall->cabinets.end(),
        [](const CabinetAssessment &cabinet) { return !cabinet.isLeftOut; });
    if (counted < 2) {
        return {};
    }
    const auto selected = m_session->selectedCabinet();
    if (selected && *selected < wall->cabinets.size() && !wall->cabinets[*selected].isLeftOut
        && (found.empty() || found.size() > mostToLeaveOut)) {
        return {*selected};
    }
    if (found.size() > mostToLeaveOut || found.size() == std::size_t(counted)) {
        found.resize(1);
    }
    return found;
}

void WallVerdict::refresh()
{
    const DisplayWall &wall = m_session->document()->description().wall;
    const auto &assessment = m_session->assessment().wall;
    if (assessment) {
        QVector<VerdictLine> shown;
        for (const WallLine &line : assessment->lines) {
            const QString mark = line.judgement ? judgementMark(*line.judgement)
                : line.isWarning                ? QStringLiteral("!")
                                                : QString();
            shown.append({mark.isEmpty() ? line.text : mark + QLatin1Char(' ') + line.text,
                line.cabinet ? QVariant(qulonglong(*line.cabinet)) : QVariant()});
        }
        showVerdict(assessment->judgement, assessment->headline, shown);
    } else {
        showVerdict(Judgement::NotKnown, tr("Not known whether the cabinets show the target"),
            {{tr("What they are to show is not known: nobody has chosen a target. Choose one, or edit the default."),
                QVariant()}});
    }
    m_fit->setEnabled(m_session->offersFitToWall());
    m_export->setEnabled(assessment && assessment->correction.fault == Model::WallFault::None);
    const auto without = cabinetsToLeaveOut();
    m_without->setVisible(!without.empty());
    if (without.size() == 1) {
        m_without->setText(buttonText(tr("Without %1", "name of a cabinet").arg(cabinetName(wall, without.front()))));
    } else if (without.size() == 2) {
        m_without->setText(buttonText(tr("Without %1 and %2", "names of cabinets")
                                          .arg(cabinetName(wall, without.front()), cabinetName(wall, without.back()))));
    }
    m_again->setVisible(std::any_of(
        wall.cabinets.begin(), wall.cabinets.end(), [](const WallCabinet &cabinet) { return cabinet.isLeftOut; }));
}

} // namespace gamutviewer
