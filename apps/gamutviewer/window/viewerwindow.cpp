// SPDX-License-Identifier: MIT
#include "window/viewerwindow.h"

#include "display/chromaticity.h"
#include "display/descriptionwriter.h"
#include "display/messages.h"
#include "display/openfile.h"
#include "display/samples.h"
#include "display/whitepoint.h"
#include "drawing/layers.h"
#include "editing/targetsession.h"
#include "panel/sidepanel.h"
#include "panel/signallog.h"
#include "panel/targeteditor.h"
#include "window/chartpage.h"
#include "window/comparepage.h"
#include "window/editpage.h"
#include "window/lenspage.h"
#include "window/recentfiles.h"
#include "window/settings.h"

#include <ceiechart/widgets/ceiegraphicsview.h>

#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QFileInfo>
#include <QLabel>
#include <QMessageBox>
#include <QMimeData>
#include <QSplitter>
#include <QStatusBar>
#include <QTabWidget>

namespace gamutviewer {

namespace {

constexpr QSize firstSize(1024, 768);
constexpr int messageMilliseconds = 6000;

QString localFile(const QMimeData *data)
{
    const QList<QUrl> urls = data->urls();
    return urls.size() == 1 ? urls.first().toLocalFile() : QString();
}

} // namespace

ViewerWindow::ViewerWindow(QWidget *parent)
    : QMainWindow(parent)
    , m_session(new TargetSession(&m_document, this))
{
    setAcceptDrops(true);
    buildPages();
    buildMenus();
    m_readout = new QLabel(this);
    m_readout->setAccessibleName(tr("Chromaticity under the pointer"));
    statusBar()->addPermanentWidget(m_readout);

    connect(&m_document, &Document::modifiedChanged, this, &QWidget::setWindowModified);
    connect(&m_document, &Document::fileNameChanged, this, &ViewerWindow::refreshTitle);
    connect(m_session, &TargetSession::refused, this,
        [this](const QString &reason) { statusBar()->showMessage(reason, messageMilliseconds); });
    connect(&m_document, &Document::changed, this, [this] { statusBar()->clearMessage(); });
    refreshTitle();
    resize(firstSize);
    restoreSettings();
}

ViewerWindow::~ViewerWindow()
{
    // A field that loses the focus may have an edit to make, of a document that is still there.
    hide();
}

void ViewerWindow::buildPages()
{
    m_splitter = new QSplitter(this);
    m_splitter->setChildrenCollapsible(false);
    m_pages = new QTabWidget(m_splitter);
    m_pages->setDocumentMode(true);
    m_switches = new LayerSwitches(this);
    m_chartPage = new ChartPage(&m_document, m_switches);
    m_editPage = new EditPage(m_session, m_switches, DrawCEIPicture::XyDiagram);
    m_uvPage = new EditPage(m_session, m_switches, DrawCEIPicture::UvDiagram);
    m_lensPage = new LensPage(&m_document);
    m_comparePage = new ComparePage(&m_document);
    addPage(m_chartPage, tr("Chart"));
    addPage(m_editPage, tr("Edit target"));
    addPage(m_uvPage, tr("u′v′"));
    addPage(m_lensPage, tr("White point"));
    addPage(m_comparePage, tr("Compare"));
    m_panel = new SidePanel(m_session, m_splitter);
    m_splitter->addWidget(m_pages);
    m_splitter->addWidget(m_panel);
    m_splitter->setStretchFactor(0, 1);
    m_splitter->setStretchFactor(1, 0);
    connect(m_splitter, &QSplitter::splitterMoved, this, [this] { m_panelWidthIsChosen = true; });
    setCentralWidget(m_splitter);
    watchCharts();
}

void ViewerWindow::addPage(Page *page, const QString &title)
{
    m_pages->addTab(page, title);
    connect(page, &Page::pointedAt, this, &ViewerWindow::showReadout);
    connect(page, &Page::pointerLeft, this, [this] { m_readout->clear(); });
}

void ViewerWindow::watchCharts()
{
    m_panel->log()->watch(m_chartPage->chart(), tr("Chart"));
    m_panel->log()->watch(m_editPage->chart(), tr("Edit target"));
    m_panel->log()->watch(m_uvPage->chart(), tr("u′v′"));
}

void ViewerWindow::setDescription(const DisplayDescription &description, const QString &fileName)
{
    m_shownFile = fileName;
    const bool isSample = !fileName.isEmpty() && QFileInfo(fileName) == QFileInfo(sampleFile());
    m_document.open(description, isSample ? QString() : fileName);
    fitPanel();
}

void ViewerWindow::showEvent(QShowEvent *event)
{
    QMainWindow::showEvent(event);
    fitPanel();
}

void ViewerWindow::fitPanel()
{
    if (!m_panelWidthIsChosen && isVisible()) {
        const int width = m_panel->sizeHint().width();
        m_splitter->setSizes({m_splitter->width() - width, width});
    }
}

bool ViewerWindow::openPath(const QString &fileName)
{
    const Outcome<OpenedFile> opened = openFile(fileName);
    if (!opened) {
        RecentFiles::remove(fileName);
        warn(opened.error());
        return false;
    }
    if (opened->content == OpenedFile::Content::Description) {
        if (!mayLoseChanges()) {
            return false;
        }
        setDescription(opened->description, fileName);
    } else {
        const DisplayDescription &open = m_document.description();
        m_document.change(opened->appliedTo(open), tr("add %1").arg(oneLine(QFileInfo(fileName).fileName())));
        refreshTitle();
    }
    RecentFiles::add(fileName);
    return true;
}

bool ViewerWindow::saveTo(const QString &fileName)
{
    m_panel->editor()->takeTyped();
    const QString error = writeDescription(m_document.description(), fileName);
    if (!error.isEmpty()) {
        warn(tr("%1: cannot be written: %2").arg(fileName, error));
        return false;
    }
    m_shownFile = fileName;
    m_document.markSaved(fileName);
    RecentFiles::add(fileName);
    statusBar()->showMessage(tr("Saved as %1").arg(oneLine(fileName)), messageMilliseconds);
    return true;
}

ChartScene ViewerWindow::shownScene() const
{
    const DisplayDescription &description = m_document.description();
    const QWidget *page = m_pages->currentWidget();
    const bool isUv = page == m_uvPage;
    Layers shown = m_switches->shown();
    if (page != m_editPage && !isUv) {
        // The chart page has no switches for them.
        shown |= Layer::Wavelengths | Layer::PlanckianLocus;
    }
    if (page == m_editPage) {
        // Nor the page to edit on for this one, which is coloured as a whole.
        shown |= Layer::CommonArea;
    }
    ChartScene scene = chartScene(description, shown, isUv ? Model::Diagram::Cie1976 : Model::Diagram::Cie1931);
    scene.wholeDigits = true;
    // All of the u′, v′ chart is coloured.
    scene.key = keyEntries(description, isUv ? shown & ~Layers(Layer::CommonArea) : shown, KeyStyle::Picture);
    return scene;
}

bool ViewerWindow::exportTo(const QString &fileName, const ChartExtent &extent)
{
    const auto format = chartFormat(fileName);
    if (!format) {
        warn(tr("%1: the name must end in .png, .svg or .pdf").arg(fileName));
        return false;
    }
    const DisplayDescription &description = m_document.description();
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const QString error = exportChart(shownScene(), description.name, extent, *format, fileName);
    QApplication::restoreOverrideCursor();
    if (!error.isEmpty()) {
        warn(tr("%1: cannot be written: %2").arg(fileName, error));
        return false;
    }
    statusBar()->showMessage(tr("Exported to %1").arg(oneLine(fileName)), messageMilliseconds);
    return true;
}

void ViewerWindow::copyChart()
{
    m_panel->editor()->takeTyped();
    ChartExtent extent;
    extent.devicePixelRatio = devicePixelRatioF();
    const QImage picture = chartPicture(shownScene(), extent);
    if (!picture.isNull()) {
        QApplication::clipboard()->setImage(picture);
        statusBar()->showMessage(tr("The chart has been copied to the clipboard."), messageMilliseconds);
    }
}

bool ViewerWindow::mayLoseChanges()
{
    m_panel->editor()->takeTyped();
    if (!m_document.isModified()) {
        return true;
    }
    const auto answer = QMessageBox::warning(this, tr("Unsaved changes"),
        tr("The display description has been modified. Save the changes?"),
        QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Save);
    return answer == QMessageBox::Save ? save() : answer == QMessageBox::Discard;
}

void ViewerWindow::refreshTitle()
{
    const QString name = m_document.description().name;
    const QString file = QFileInfo(m_document.fileName().isEmpty() ? m_shownFile : m_document.fileName()).fileName();
    const QString shown = !name.isEmpty() ? name : !file.isEmpty() ? file : tr("Untitled");
    setWindowTitle(tr("%1[*] – Gamut viewer").arg(oneLine(shown)));
    setWindowFilePath(m_document.fileName());
}

void ViewerWindow::showReadout(const QPointF &xy)
{
    if (!isChromaticity(xy)) {
        m_readout->clear();
        return;
    }
    const QPointF uv = uvFromXy(xy);
    QString text = tr("x %1  y %2   u′ %3  v′ %4")
                       .arg(xy.x(), 0, 'f', 4)
                       .arg(xy.y(), 0, 'f', 4)
                       .arg(uv.x(), 0, 'f', 4)
                       .arg(uv.y(), 0, 'f', 4);
    if (const auto white = colorTemperature(xy)) {
        text += tr("   %1  Duv %2", "with the temperature").arg(temperatureText(*white), duvText(*white));
    }
    m_readout->setText(text);
}

void ViewerWindow::warn(const QString &text)
{
    QMessageBox box(QMessageBox::Warning, tr("Gamut viewer"), oneLine(text), QMessageBox::Ok, this);
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

void ViewerWindow::closeEvent(QCloseEvent *event)
{
    if (!mayLoseChanges()) {
        event->ignore();
        return;
    }
    saveSettings();
    event->accept();
}

void ViewerWindow::dragEnterEvent(QDragEnterEvent *event)
{
    if (!localFile(event->mimeData()).isEmpty()) {
        event->acceptProposedAction();
    }
}

void ViewerWindow::dropEvent(QDropEvent *event)
{
    const QString fileName = localFile(event->mimeData());
    if (fileName.isEmpty()) {
        return;
    }
    event->acceptProposedAction();
    // The program that the file comes from waits for the drop to end, and a message may be shown.
    QMetaObject::invokeMethod(
        this, [this, fileName] { openPath(fileName); }, Qt::QueuedConnection);
}

void ViewerWindow::restoreSettings()
{
    const Settings settings;
    restoreGeometry(settings.value(QStringLiteral("window/geometry")).toByteArray());
    m_panelWidthIsChosen = m_splitter->restoreState(settings.value(QStringLiteral("window/splitter")).toByteArray());
    m_pages->setCurrentIndex(settings.value(QStringLiteral("window/page"), 0).toInt());
}

void ViewerWindow::saveSettings() const
{
    Settings settings;
    settings.setValue(QStringLiteral("window/geometry"), saveGeometry());
    settings.setValue(QStringLiteral("window/splitter"), m_splitter->saveState());
    settings.setValue(QStringLiteral("window/page"), m_pages->currentIndex());
}

} // namespace gamutviewer
