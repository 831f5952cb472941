// SPDX-License-Identifier: MIT
#include "panel/wallverdict.h"

#include "display/valuetexts.h"
#include "display/wallassessment.h"
#include "editing/document.h"
#include "editing/targetsession.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace gamutviewer {

namespace {

constexpr int cabinetRole = Qt::UserRole;
constexpr int shownLines = 4; // of text; the others are scrolled to
constexpr std::size_t mostToLeaveOut = 2;

QString buttonText(QString text)
{
    return text.replace(QLatin1Char('&'), QLatin1String("&&"));
}

} // namespace

WallVerdict::WallVerdict(TargetSession *session, QWidget *parent)
    : QFrame(parent)
    , m_session(session)
{
    setFrameShape(StyledPanel);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(8, 6, 8, 6);
    layout->setSpacing(2);
    m_verdict = new QLabel(this);
    QFont bold = font();
    bold.setBold(true);
    m_verdict->setFont(bold);
    m_verdict->setTextFormat(Qt::PlainText);
    m_verdict->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_verdict->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    layout->addWidget(m_verdict);
    m_lines = new QListWidget(this);
    QFont small = font();
    small.setPointSizeF(small.pointSizeF() * 0.85);
    m_lines->setFont(small);
    m_lines->setFrameShape(NoFrame);
    m_lines->setWordWrap(true);
    m_lines->setTextElideMode(Qt::ElideNone);
    m_lines->setResizeMode(QListView::Adjust);
    m_lines->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_lines->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_lines->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    m_lines->setAccessibleName(tr("Grounds of the verdict on the wall"));
    m_lines->setAccessibleDescription(tr("Return selects the cabinet of a line"));
    // Always as high: what is below must not jump in the middle of a drag.
    m_lines->setFixedHeight(shownLines * QFontMetrics(small).lineSpacing() + 4);
    QPalette flat = m_lines->palette();
    flat.setColor(QPalette::Base, palette().color(QPalette::Window));
    m_lines->setPalette(flat);
    layout->addWidget(m_lines);
    auto *ways = new QHBoxLayout;
    ways->setSpacing(4);
    layout->addLayout(ways);
    const auto addWay = [&](const QString &text) {
        auto *button = new QToolButton(this);
        button->setText(text);
        button->setFont(small);
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
    connect(m_lines, &QListWidget::itemClicked, this, &WallVerdict::choose);
    connect(m_lines, &QListWidget::itemActivated, this, &WallVerdict::choose);
    refresh();
}

QString WallVerdict::text() const
{
    QStringList lines(m_verdict->text());
    for (int row = 0; row < m_lines->count(); ++row) {
        lines.append(m_lines->item(row)->text());
    }
    return lines.join(QLatin1Char('\n'));
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
    const QString before = text();
    const DisplayWall &wall = m_session->document()->description().wall;
    const auto &assessment = m_session->assessment().wall;
    QVector<WallLine> lines;
    if (assessment) {
        m_verdict->setText(judgementMark(assessment->judgement) + QLatin1Char(' ') + assessment->headline);
        lines = assessment->lines;
    } else {
        m_verdict->setText(judgementMark(Judgement::NotKnown) + QLatin1Char(' ')
            + tr("Not known whether the cabinets show the target"));
        lines.append({std::nullopt,
            tr("What they are to show is not known: nobody has chosen a target. Choose one, or edit the default.")});
    }
    m_verdict->setToolTip(plainToolTip(m_verdict->text()));
    while (m_lines->count() > lines.size()) {
        delete m_lines->takeItem(m_lines->count() - 1);
    }
    for (int row = 0; row < lines.size(); ++row) {
        const WallLine &line = lines.at(row);
        if (row == m_lines->count()) {
            m_lines->addItem(QString());
        }
        QListWidgetItem *item = m_lines->item(row);
        const QString text = line.judgement ? judgementMark(*line.judgement) + QLatin1Char(' ') + line.text : line.text;
        // Setting what is there already would lay the list out again, in every step of a drag.
        if (item->text() != text) {
            item->setText(text);
        }
        item->setData(cabinetRole, line.cabinet ? QVariant(qulonglong(*line.cabinet)) : QVariant());
    }
    m_fit->setEnabled(assessment && assessment->judgement != Judgement::Pass);
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
    if (text() != before) {
        // A screen reader says it as it changes.
        setAccessibleName(text());
        QAccessibleEvent event(this, QAccessible::Alert);
        QAccessible::updateAccessibility(&event);
    }
}

void WallVerdict::choose(const QListWidgetItem *item)
{
    const QVariant cabinet = item->data(cabinetRole);
    if (cabinet.isValid()) {
        m_session->selectCabinet(std::size_t(cabinet.toULongLong()));
    }
}

} // namespace gamutviewer
