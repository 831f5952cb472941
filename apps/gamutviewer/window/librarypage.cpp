// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "window/librarypage.h"

#include "editing/document.h"
#include "panel/signallog.h"

#include <ceiechart/legacy/ceiegraphicsview.h>
#include <ceiechart/widgets/ceiegraphicsview.h>

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QScrollArea>
#include <QSplitter>
#include <QVBoxLayout>

namespace gamutviewer {

namespace {

Model::ColorGamutInfo info(const std::optional<Model::ColorGamut> &gamut)
{
    const Model::Targets t = gamut ? gamut->getTargets() : Model::Targets();
    return {t.red, t.green, t.blue, t.white};
}

QList<QPointF> positions(const QVector<NamedPoint> &points)
{
    QList<QPointF> found;
    for (const NamedPoint &point : points) {
        found.append(point.xy);
    }
    return found;
}

constexpr QSize proportion(12, 13); // fills the charts' scene
constexpr QSize smallestChart(240, 260); // pixels

QWidget *titled(const QString &title, QWidget *chart)
{
    auto *box = new QWidget;
    auto *layout = new QVBoxLayout(box);
    auto *label = new QLabel(title, box);
    label->setMinimumWidth(1); // as narrow as the chart
    layout->addWidget(label);
    layout->addWidget(chart);
    layout->addStretch();
    return box;
}

} // namespace

LibraryPage::LibraryPage(Document *document, QWidget *parent)
    : Page(document, parent)
    , m_current(new NewCEIE::CEIEGraphicsView(this))
    , m_legacy(new CEIEGraphicsView(this, DrawCEIPicture::XyDiagram))
    , m_log(new SignalLog(this))
{
    m_current->view()->setAccessibleName(tr("Current chart, CIE 1931 x, y"));
    m_legacy->view()->setAccessibleName(tr("Legacy chart, CIE 1931 x, y"));
    auto *charts = new QWidget;
    auto *row = new QHBoxLayout(charts);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(titled(tr("Current: NewCEIE::CEIEGraphicsView"), m_current));
    row->addWidget(titled(tr("Legacy: CEIEGraphicsView"), m_legacy));
    m_area = new QScrollArea;
    m_area->setFrameShape(QFrame::NoFrame);
    m_area->setAccessibleName(tr("Charts of the library"));
    m_area->setWidgetResizable(true);
    m_area->setWidget(charts);
    auto *parts = new QSplitter(Qt::Vertical, this);
    parts->setChildrenCollapsible(false);
    parts->addWidget(m_area);
    parts->addWidget(m_log);
    parts->setStretchFactor(0, 1);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(parts, 1);
    auto *note = new QLabel(
        tr("The charts show the document. What is moved in them is logged, and leaves it as it is."), this);
    note->setWordWrap(true);
    layout->addWidget(note);
    m_area->installEventFilter(this); // which gives the charts their size, when the page is shown first
    setFocusInside(m_current->view());
    m_log->watch(m_current, tr("Current"));
    m_log->watch(m_legacy, tr("Legacy"));
}

Picture LibraryPage::picture() const
{
    Picture picture = Page::picture();
    picture.isLibraryChart = true;
    return picture;
}

void LibraryPage::fillRoom()
{
    const QWidget *charts = m_area->widget();
    const QMargins margins = m_current->parentWidget()->layout()->contentsMargins();
    const QSize room = m_area->maximumViewportSize();
    constexpr int frame = 2; // of a view around its picture
    const int width = (room.width() - charts->layout()->spacing()) / 2 - margins.left() - margins.right() - frame;
    // Legends do not wrap: with them, one chart would push the other out of the window.
    m_current->getLegend()->setVisible(m_current->getLegend()->sizeHint().width() <= width);
    m_legacy->getLegend()->setVisible(m_legacy->getLegend()->sizeHint().width() <= width);
    // Titles, legends and what lies between.
    const int below = charts->sizeHint().height() - m_current->view()->height();
    const QSize each(width, room.height() - below - frame);
    const QSize size = proportion.scaled(each.expandedTo(smallestChart), Qt::KeepAspectRatio);
    if (size == QSize(m_current->imageWidth(), m_current->imageHeight())) {
        return;
    }
    const auto resize = [&size](auto *chart) {
        chart->setImageWidth(size.width());
        chart->setImageHeight(size.height());
    };
    resize(m_current);
    resize(m_legacy);
    refreshWhenShown(); // a chart of another size is bare
}

bool LibraryPage::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_area && event->type() == QEvent::Resize) {
        fillRoom();
    }
    return Page::eventFilter(watched, event);
}

void LibraryPage::refresh()
{
    const DisplayDescription &description = document()->description();
    const auto original = document()->original();
    const auto measured = document()->measured();
    const auto target = description.gamut(description.target); // not the default one, which they cannot tell apart
    const Model::ColorGamut none;
    QList<Model::ColorGamut> standards;
    const QHash<QString, int> places = description.gamutPlaces();
    for (const QString &name : description.standards) {
        if (const auto standard = description.gamut(name, places)) {
            standards.append(*standard);
        }
    }
    m_current->setCMYPointData(positions(description.cmyPoints));
    m_current->setIsShowOriginal(original.has_value());
    m_current->setIsShowTarget(target.has_value());
    m_current->setIsShowActual(original && target);
    if (measured) {
        m_current->setColorGamut(target.value_or(none), original.value_or(none), *measured, standards);
    } else {
        m_current->setColorGamut(target.value_or(none), original.value_or(none), standards);
    }
    m_legacy->setColorGamut(info(target), info(original));
}

} // namespace gamutviewer
