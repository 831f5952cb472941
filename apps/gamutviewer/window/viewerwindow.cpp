// SPDX-License-Identifier: MIT
#include "window/viewerwindow.h"

#include "display/chromaticity.h"
#include "display/samples.h"
#include "display/valuetexts.h"
#include "editing/openedfiles.h"
#include "editing/targetsession.h"
#include "panel/sidepanel.h"
#include "panel/targeteditor.h"
#include "window/comparepage.h"
#include "window/diagrampage.h"
#include "window/librarypage.h"
#include "window/recentfiles.h"
#include "window/settings.h"

#include <ceiechart/diagram/targetrules.h>

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
    buildStatusBar();

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
    m_diagramPage = new DiagramPage(m_session);
    m_comparePage = new ComparePage(m_session);
    m_libraryPage = new LibraryPage(&m_document);
    for (Page *page :
        {static_cast<Page *>(m_diagramPage), static_cast<Page *>(m_comparePage), static_cast<Page *>(m_libraryPage)}) {
        addPage(page);
    }
    m_panel = new SidePanel(m_session, m_splitter);
    m_splitter->addWidget(m_pages);
    m_splitter->addWidget(m_panel);
    m_splitter->setStretchFactor(0, 1);
    m_splitter->setStretchFactor(1, 0);
    connect(m_splitter, &QSplitter::splitterMoved, this, [this] { m_panelWidthIsChosen = true; });
    setCentralWidget(m_splitter);
}

void ViewerWindow::addPage(Page *page)
{
    m_pages->addTab(page, page->title());
    connect(page, &Page::pointedAt, this, &ViewerWindow::showReadout);
    connect(page, &Page::pointerLeft, this, [this] { setReadout(QString()); });
}

void ViewerWindow::buildStatusBar()
{
    // A message takes the place of the hints, never that of the readout.
    m_hints = new QLabel(this);
    m_hints->setMinimumWidth(1);
    statusBar()->addWidget(m_hints, 1);
    m_readout = new QLabel(this);
    m_readout->setTextFormat(Qt::PlainText);
    m_readout->setToolTip(tr("Dominant wavelength λ and excitation purity p are relative to the white of the target"));
    statusBar()->addPermanentWidget(m_readout);
    setReadout(QString());
    connect(m_pages, &QTabWidget::currentChanged, this, &ViewerWindow::followPage);
    followPage();
}

Page *ViewerWindow::currentPage() const
{
    return static_cast<Page *>(m_pages->currentWidget());
}

void ViewerWindow::followPage()
{
    m_hints->setText(currentPage()->hints());
    setReadout(QString());
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
    const Outcome<GamutFile> opened = readGamutFile(fileName);
    if (!opened) {
        RecentFiles::remove(fileName);
        warn(opened.problem().message(fileName));
        return false;
    }
    if (opened->content == GamutFile::Content::Description) {
        if (!mayLoseChanges()) {
            return false;
        }
        setDescription(opened->description, fileName);
    } else {
        const DisplayDescription &open = m_document.description();
        m_document.change(withFile(open, *opened), tr("add %1").arg(oneLine(QFileInfo(fileName).fileName())));
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

bool ViewerWindow::exportTo(const QString &fileName, const Picture &picture, const PictureExtent &extent)
{
    const auto format = pictureFormat(fileName);
    if (!format) {
        warn(tr("%1: the name must end in .png, .svg or .pdf").arg(fileName));
        return false;
    }
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const QString error = exportPicture(picture, m_document.description().name, extent, *format, fileName);
    QApplication::restoreOverrideCursor();
    if (!error.isEmpty()) {
        warn(tr("%1: cannot be written: %2").arg(fileName, error));
        return false;
    }
    statusBar()->showMessage(
        (lacksRoomForKey(picture, extent.size) ? tr("Exported to %1, without a key for lack of room")
                                               : tr("Exported to %1"))
            .arg(oneLine(fileName)),
        messageMilliseconds);
    return true;
}

void ViewerWindow::copyPicture()
{
    m_panel->editor()->takeTyped();
    const Picture shown = currentPage()->picture();
    PictureExtent extent;
    if (!shown.isLibraryChart) {
        // As it is on the screen.
        extent.devicePixelRatio = devicePixelRatioF();
        extent.size = shown.view.size().isEmpty() ? extent.size : shown.view.size().toSize();
    }
    const QImage picture = pixelsOf(shown, extent);
    if (!picture.isNull()) {
        QApplication::clipboard()->setImage(picture);
        statusBar()->showMessage(tr("The picture has been copied to the clipboard."), messageMilliseconds);
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
    if (!ceiechart::isChromaticity(xy)) {
        setReadout(QString());
        return;
    }
    const QPointF uv = uvFromXy(xy);
    QString text = tr("x %1  y %2   u′ %3  v′ %4")
                       .arg(fixedText(xy.x(), 4), fixedText(xy.y(), 4), fixedText(uv.x(), 4), fixedText(uv.y(), 4));
    if (const auto white = ceiechart::colorTemperature(xy)) {
        text += tr("   %1  Duv %2", "with the temperature").arg(temperatureText(*white), duvText(*white));
    }
    if (const auto target = m_document.target()) {
        const Model::Target &white = target->getTargets().white;
        if (const auto hue = Model::dominantWavelength({xy.x(), xy.y()}, {white.x, white.y})) {
            text += tr("   λ %1 nm  p %2", "dominant wavelength and purity, for the white of the target")
                        .arg(wavelengthText(*hue), purityText(*hue));
        }
    }
    setReadout(text);
}

void ViewerWindow::setReadout(const QString &text)
{
    m_readout->setText(text);
    // The name is what a screen reader reads, and it hears of its changes.
    m_readout->setAccessibleName(
        text.isEmpty() ? tr("Chromaticity under the pointer") : tr("Chromaticity under the pointer: %1").arg(text));
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
