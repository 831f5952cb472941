// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "window/viewerwindow.h"

#include "display/chromaticity.h"
#include "display/valuetexts.h"
#include "editing/targetsession.h"
#include "panel/hintlabel.h"
#include "panel/scaledfont.h"
#include "panel/sidepanel.h"
#include "panel/targeteditor.h"
#include "panel/warningbar.h"
#include "window/comparepage.h"
#include "window/diagrampage.h"
#include "window/followmenu.h"
#include "window/gamutsdialog.h"
#include "window/librarypage.h"
#include "window/settings.h"
#include "window/wallpage.h"

#include <ceiechart/diagram/targetrules.h>

#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QLabel>
#include <QMessageBox>
#include <QSplitter>
#include <QStatusBar>
#include <QTabWidget>
#include <QVBoxLayout>

#include <new>

namespace gamutviewer {

namespace {

constexpr QSize firstSize(1024, 768);
constexpr int messageMilliseconds = 6000;

} // namespace

ViewerWindow::ViewerWindow(QWidget *parent)
    : QMainWindow(parent)
    , m_session(new TargetSession(&m_document, this))
{
    setAcceptDrops(true);
    qApp->installEventFilter(this);
    buildPages();
    buildMenus();
    buildStatusBar();

    connect(&m_document, &Document::modifiedChanged, this, &QWidget::setWindowModified);
    connect(&m_document, &Document::fileNameChanged, this, &ViewerWindow::refreshTitle);
    connect(&m_document, &Document::changed, this, &ViewerWindow::refreshTitle);
    connect(m_session, &TargetSession::refused, this, &ViewerWindow::showBriefly);
    connect(&m_document, &Document::edited, this, [this] { statusBar()->clearMessage(); });
    refreshTitle();
    resize(firstSize);
    restoreSettings();
}

ViewerWindow::~ViewerWindow()
{
    // A field that loses the focus may have an edit to make, of a document that is still there.
    hide();
    qApp->removeEventFilter(this);
    delete m_gamuts; // which shows the document, and would be deleted after it
    // The history tells that it is empty as it goes. By then, half of the window is gone.
    disconnect(m_document.history(), nullptr, nullptr, nullptr);
    disconnect(&m_document, nullptr, nullptr, nullptr);
}

void ViewerWindow::buildPages()
{
    m_splitter = new QSplitter(this);
    m_splitter->setChildrenCollapsible(false);
    m_pages = new QTabWidget(m_splitter);
    m_pages->setDocumentMode(true);
    m_diagramPage = new DiagramPage(m_session);
    m_comparePage = new ComparePage(m_session);
    m_wallPage = new WallPage(m_session);
    connect(m_wallPage, &WallPage::exportWanted, this, &ViewerWindow::exportCorrectionsByDialog);
    m_libraryPage = new LibraryPage(&m_document);
    for (Page *page : {static_cast<Page *>(m_diagramPage), static_cast<Page *>(m_comparePage),
             static_cast<Page *>(m_wallPage), static_cast<Page *>(m_libraryPage)}) {
        addPage(page);
    }
    m_panel = new SidePanel(m_session, m_splitter);
    m_splitter->addWidget(m_pages);
    m_splitter->addWidget(m_panel);
    m_splitter->setStretchFactor(0, 1);
    m_splitter->setStretchFactor(1, 0);
    connect(m_splitter, &QSplitter::splitterMoved, this, [this] { m_panelWidthIsChosen = true; });
    auto *all = new QWidget(this);
    auto *layout = new QVBoxLayout(all);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    m_warnings = new WarningBar(all);
    layout->addWidget(m_warnings);
    layout->addWidget(m_splitter, 1);
    setCentralWidget(all);
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
    m_hints = new HintLabel(this);
    statusBar()->addWidget(m_hints, 1);
    statusBar()->addPermanentWidget(m_followMenu->label());
    m_readout = new QLabel(this);
    // In a window of 1024 pixels there is room for both.
    constexpr double textScale = 0.85;
    const QFont small = scaledFont(font(), textScale);
    m_hints->setFont(small);
    m_readout->setFont(small);
    m_readout->setTextFormat(Qt::PlainText);
    m_readout->setToolTip(tr("Dominant wavelength λ and excitation purity p are relative to the white of the target"));
    statusBar()->addPermanentWidget(m_readout);
    setReadout(QString());
    connect(m_pages, &QTabWidget::currentChanged, this, &ViewerWindow::followPage);
    followPage();
}

void ViewerWindow::showBriefly(const QString &message)
{
    statusBar()->showMessage(message, messageMilliseconds);
}

Page *ViewerWindow::currentPage() const
{
    return static_cast<Page *>(m_pages->currentWidget());
}

void ViewerWindow::followPage()
{
    m_hints->setForms(currentPage()->hints());
    setReadout(QString());
}

void ViewerWindow::showEvent(QShowEvent *event)
{
    QMainWindow::showEvent(event);
    fitPanel();
    if (!focusWidget()) {
        // Keys are for what is shown; Qt would give them to the tabs of the pages.
        currentPage()->setFocus(Qt::ActiveWindowFocusReason);
    }
}

void ViewerWindow::fitPanel()
{
    if (!m_panelWidthIsChosen && isVisible()) {
        const int width = m_panel->sizeHint().width();
        m_splitter->setSizes({m_splitter->width() - width, width});
    }
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
        showBriefly(tr("The picture has been copied to the clipboard."));
    }
}

void ViewerWindow::showReadout(const QPointF &xy, int decimals)
{
    if (!ceiechart::isChromaticity(xy)) {
        setReadout(QString());
        return;
    }
    const QPointF uv = uvFromXy(xy);
    QString text = tr("x %1  y %2   u′ %3  v′ %4")
                       .arg(fixedText(xy.x(), decimals), fixedText(xy.y(), decimals), fixedText(uv.x(), decimals),
                           fixedText(uv.y(), decimals));
    if (const auto white = ceiechart::colorTemperature(xy)) {
        text += tr("   %1  Duv %2", "with the temperature").arg(temperatureText(*white), duvText(*white));
    }
    // Of a default nobody has said that its white is the reference.
    const DisplayDescription &description = m_document.description();
    if (const auto target = description.gamut(description.target)) {
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
    event->setAccepted(mayClose());
}

//! Thrown through the event loop, a lack of memory would end the program, and with it what is open.
bool ViewerWindow::mayClose()
{
    try {
        if (!m_followMenu->keepWhatWouldBeLost() || !mayLoseChanges()) {
            return false;
        }
        saveSettings();
        return true;
    } catch (const std::bad_alloc &) {
        return false; // there may be memory for it the next time
    }
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
