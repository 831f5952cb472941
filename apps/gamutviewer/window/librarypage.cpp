// SPDX-License-Identifier: MIT
#include "window/librarypage.h"

#include "editing/document.h"
#include "panel/signallog.h"

#include <ceiechart/legacy/ceiegraphicsview.h>
#include <ceiechart/widgets/ceiegraphicsview.h>

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

constexpr QSize chartSize(400, 433); // pixels of the pictures; 12:13 fills the charts' scene

QWidget *titled(const QString &title, QWidget *chart)
{
    auto *box = new QWidget;
    auto *layout = new QVBoxLayout(box);
    layout->addWidget(new QLabel(title, box));
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
    m_current->view()->setMinimumSize(chartSize);
    m_current->view()->setAccessibleName(tr("Current chart, CIE 1931 x, y"));
    m_legacy->view()->setAccessibleName(tr("Legacy chart, CIE 1931 x, y"));
    m_current->setImageWidth(chartSize.width());
    m_current->setImageHeight(chartSize.height());
    m_legacy->setImageWidth(chartSize.width());
    m_legacy->setImageHeight(chartSize.height());
    auto *charts = new QWidget;
    auto *row = new QHBoxLayout(charts);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(titled(tr("Current: NewCEIE::CEIEGraphicsView"), m_current));
    row->addWidget(titled(tr("Legacy: CEIEGraphicsView"), m_legacy));
    row->addStretch();
    auto *area = new QScrollArea;
    area->setFrameShape(QFrame::NoFrame);
    area->setAccessibleName(tr("Charts of the library"));
    area->setWidgetResizable(true);
    area->setWidget(charts);
    auto *parts = new QSplitter(Qt::Vertical, this);
    parts->setChildrenCollapsible(false);
    parts->addWidget(area);
    parts->addWidget(m_log);
    parts->setStretchFactor(0, 1);
    parts->setSizes({600, 110});
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(parts, 1);
    auto *note = new QLabel(
        tr("The charts show the document. What is moved in them is logged, and leaves it as it is."), this);
    note->setWordWrap(true);
    layout->addWidget(note);
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

void LibraryPage::refresh()
{
    const DisplayDescription &description = document()->description();
    const auto original = document()->original();
    const auto measured = document()->measured();
    const auto target = document()->target();
    const Model::ColorGamut none;
    QList<Model::ColorGamut> standards;
    for (const QString &name : description.standards) {
        if (const auto standard = description.gamut(name)) {
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
    m_legacy->setMeasureValuePoints(positions(description.measurePoints));
    m_legacy->setColorGamut(info(document()->target()), info(document()->original()));
}

} // namespace gamutviewer
