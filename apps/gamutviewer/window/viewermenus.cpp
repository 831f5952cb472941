// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "display/gamutfiles.h"
#include "display/samples.h"
#include "editing/targetsession.h"
#include "panel/plaintooltip.h"
#include "panel/sidepanel.h"
#include "panel/targeteditor.h"
#include "window/diagrampage.h"
#include "window/exportdialog.h"
#include "window/followmenu.h"
#include "window/gamutsdialog.h"
#include "window/recentfiles.h"
#include "window/tolerancesmenu.h"
#include "window/viewerwindow.h"
#include "window/wallpage.h"

#include <QAction>
#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QTabWidget>

namespace gamutviewer {

namespace {

QString menuText(QString text)
{
    return text.replace(QLatin1Char('&'), QLatin1String("&&"));
}

template <typename Slot>
QAction *addItem(QMenu *menu, const QString &text, const QKeySequence &shortcut, ViewerWindow *window, Slot slot)
{
    QAction *action = menu->addAction(text, window, slot);
    action->setShortcut(shortcut);
    return action;
}

} // namespace

void ViewerWindow::buildMenus()
{
    buildFileMenu();
    buildEditMenu();
    buildViewMenu();
    buildWallMenu();
    buildHelpMenu();
}

void ViewerWindow::buildFileMenu()
{
    QMenu *menu = menuBar()->addMenu(tr("&File"));
    addItem(menu, tr("&New"), QKeySequence::New, this, &ViewerWindow::newDocument);
    addItem(menu, tr("&Open…"), QKeySequence::Open, this, [this] { openByDialog(Manner::Open); });
    addItem(menu, tr("A&dd…"), Qt::CTRL | Qt::SHIFT | Qt::Key_O, this, [this] { openByDialog(Manner::Add); });
    m_recentMenu = menu->addMenu(tr("Open &recent"));
    connect(m_recentMenu, &QMenu::aboutToShow, this, &ViewerWindow::fillRecentMenu);
    QMenu *samples = menu->addMenu(tr("Open sam&ple"));
    samples->addAction(tr("The &gamuts of an LED wall"), this, [this] { openPath(sampleFile()); });
    samples->addAction(tr("The &cabinets of a simulated wall"), this, [this] { openWall(sampleWallFile()); });
    m_listMenu = menu->addMenu(tr("Read &list again"));
    connect(m_listMenu, &QMenu::aboutToShow, this, &ViewerWindow::fillListMenu);
    connect(menu, &QMenu::aboutToShow, this,
        [this] { m_listMenu->menuAction()->setEnabled(!listsToReadAgain().isEmpty()); });
    m_followMenu = new FollowMenu(&m_document, this);
    menu->addMenu(m_followMenu);
    menu->addSeparator();
    addItem(menu, tr("&Save"), QKeySequence::Save, this, &ViewerWindow::save);
    addItem(menu, tr("Save &as…"), Qt::CTRL | Qt::SHIFT | Qt::Key_S, this, &ViewerWindow::saveAs);
    menu->addSeparator();
    addItem(menu, tr("&Export picture…"), Qt::CTRL | Qt::Key_E, this, &ViewerWindow::exportByDialog);
    menu->addSeparator();
    QAction *close = menu->addAction(tr("&Close"), this, &ViewerWindow::closeDocument);
    close->setShortcuts(QKeySequence::Close);
    QAction *quit = menu->addAction(tr("&Quit"), this, &QWidget::close);
    quit->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q));
}

void ViewerWindow::buildEditMenu()
{
    QMenu *menu = menuBar()->addMenu(tr("&Edit"));
    const auto nameAfter = [](QAction *action, const QString &verb, const QString &step) {
        action->setText(
            step.isEmpty() ? verb : tr("%1 (%2)", "verb and step of the history").arg(verb, menuText(step)));
    };
    QUndoStack *history = m_document.history();
    m_undo = addItem(menu, tr("&Undo"), QKeySequence::Undo, this, &ViewerWindow::undo);
    m_undo->setEnabled(false);
    connect(history, &QUndoStack::canUndoChanged, m_undo, &QAction::setEnabled);
    connect(history, &QUndoStack::undoTextChanged, m_undo,
        [this, nameAfter](const QString &step) { nameAfter(m_undo, tr("&Undo"), step); });
    m_redo = menu->addAction(tr("&Redo"), this, &ViewerWindow::redo);
    m_redo->setShortcuts({QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z), QKeySequence(Qt::CTRL | Qt::Key_Y)});
    m_redo->setEnabled(false);
    connect(history, &QUndoStack::canRedoChanged, m_redo, &QAction::setEnabled);
    connect(history, &QUndoStack::redoTextChanged, m_redo,
        [this, nameAfter](const QString &step) { nameAfter(m_redo, tr("&Redo"), step); });
    menu->addSeparator();
    const auto addRule
        = [&](const QString &text, void (TargetSession::*set)(bool), bool (TargetSession::*get)() const) {
              QAction *action = menu->addAction(text);
              action->setCheckable(true);
              action->setChecked((m_session->*get)());
              connect(action, &QAction::toggled, m_session, set);
              connect(m_session, &TargetSession::rulesChanged, action,
                  [this, action, get] { action->setChecked((m_session->*get)()); });
          };
    addRule(tr("Hold &white"), &TargetSession::setHoldWhite, &TargetSession::holdWhite);
    addRule(tr("&Lock primaries"), &TargetSession::setLockPrimaries, &TargetSession::lockPrimaries);
    addRule(tr("&Snap"), &TargetSession::setSnaps, &TargetSession::snaps);
    menu->addSeparator();
    addItem(menu, tr("&Gamuts…"), Qt::CTRL | Qt::Key_G, this, &ViewerWindow::showGamuts);
    menu->addSeparator();
    addItem(menu, tr("&Copy picture"), Qt::CTRL | Qt::SHIFT | Qt::Key_C, this, &ViewerWindow::copyPicture);
}

void ViewerWindow::buildViewMenu()
{
    QMenu *menu = menuBar()->addMenu(tr("&View"));
    for (int page = 0; page < m_pages->count(); ++page) {
        addItem(menu, m_pages->tabText(page), Qt::CTRL | Qt::Key(Qt::Key_1 + page), this, [this, page] {
            m_pages->setCurrentIndex(page);
            m_pages->currentWidget()->setFocus();
        });
    }
    menu->addSeparator();
    menu->addActions(m_diagramPage->actions());
    menu->addSeparator();
    m_tolerancesMenu = new TolerancesMenu(m_session, this);
    connect(m_tolerancesMenu, &TolerancesMenu::refused, this, &ViewerWindow::warn);
    connect(m_tolerancesMenu, &TolerancesMenu::warned, this, &ViewerWindow::addWarnings);
    menu->addMenu(m_tolerancesMenu);
}

void ViewerWindow::buildWallMenu()
{
    QMenu *menu = menuBar()->addMenu(tr("Wall"));
    menu->addActions(m_wallPage->actions());
    menu->addSeparator();
    QAction *fit = menu->addAction(tr("&Fit target to the wall"), m_session, &TargetSession::fitToWall);
    QAction *leaveOut = menu->addAction(tr("Judge without the selected &cabinet"));
    leaveOut->setCheckable(true);
    connect(leaveOut, &QAction::triggered, this, [this](bool isLeftOut) {
        if (const auto cabinet = m_session->selectedCabinet()) {
            m_session->setLeftOut({*cabinet}, isLeftOut);
        }
    });
    menu->addSeparator();
    QAction *write = menu->addAction(tr("&Export corrections…"), this, &ViewerWindow::exportCorrectionsByDialog);
    menu->addSeparator();
    QAction *remove = menu->addAction(tr("&Remove the wall"), m_session, &TargetSession::removeWall);
    const auto refresh = [this, fit, leaveOut, write, remove] {
        const DisplayWall &wall = m_document.description().wall;
        const auto cabinet = m_session->selectedCabinet();
        const bool isOne = cabinet && *cabinet < wall.cabinets.size();
        fit->setEnabled(!wall.cabinets.empty());
        write->setEnabled(!wall.cabinets.empty());
        remove->setEnabled(!wall.cabinets.empty() && !m_document.followsWall());
        leaveOut->setEnabled(isOne);
        leaveOut->setChecked(isOne && wall.cabinets.at(*cabinet).isLeftOut);
    };
    connect(&m_document, &Document::changed, menu, refresh);
    connect(m_session, &TargetSession::selectedCabinetChanged, menu, refresh);
    refresh();
}

void ViewerWindow::buildHelpMenu()
{
    QMenu *menu = menuBar()->addMenu(tr("&Help"));
    addItem(menu, tr("&Keys"), QKeySequence::HelpContents, this, &ViewerWindow::showKeys);
    menu->addAction(tr("&About"), this, &ViewerWindow::about);
}

void ViewerWindow::exportByDialog()
{
    m_panel->editor()->takeTyped();
    ExportDialog picture(currentPage()->picture(), this);
    if (picture.exec() != QDialog::Accepted) {
        return;
    }
    const QString suffix = pictureSuffix(picture.format());
    const QFileInfo proposed(proposedPath(suffix));
    QFileDialog dialog(this, tr("Export picture"), proposed.path(), tr("Pictures (*.%1)").arg(suffix));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(suffix);
    dialog.selectFile(proposed.fileName());
    if (dialog.exec() == QDialog::Accepted) {
        exportTo(dialog.selectedFiles().constFirst(), picture.picture(), picture.extent());
    }
}

void ViewerWindow::fillListMenu()
{
    m_listMenu->clear();
    m_listMenu->setToolTipsVisible(true);
    for (const QString &file : listsToReadAgain()) {
        QAction *action = m_listMenu->addAction(menuText(oneLine(QFileInfo(file).fileName())) + QStringLiteral("…"),
            this, [this, file] { readAgain(file); });
        action->setToolTip(plainToolTip(oneLine(file)));
    }
}

void ViewerWindow::fillRecentMenu()
{
    m_recentMenu->clear();
    const QStringList files = RecentFiles::list();
    for (const QString &file : files) {
        QAction *action
            = m_recentMenu->addAction(menuText(QFileInfo(file).fileName()), this, [this, file] { openPath(file); });
        action->setToolTip(plainToolTip(file));
        action->setStatusTip(file);
    }
    if (files.isEmpty()) {
        m_recentMenu->addAction(tr("None"))->setEnabled(false);
        return;
    }
    m_recentMenu->addSeparator();
    m_recentMenu->addAction(tr("&Clear"), [] { RecentFiles::clear(); });
}

GamutsDialog *ViewerWindow::showGamuts()
{
    m_panel->editor()->takeTyped();
    if (!m_gamuts) {
        m_gamuts = new GamutsDialog(&m_document, this);
        m_gamuts->setAttribute(Qt::WA_DeleteOnClose);
        m_gamuts->addActions({m_undo, m_redo});
    }
    m_gamuts->show();
    m_gamuts->raise();
    m_gamuts->activateWindow();
    return m_gamuts;
}

void ViewerWindow::undo()
{
    // In the middle of a drag there is a step that the history does not have yet.
    if (m_document.isDragging()) {
        m_session->cancelDrag();
    } else {
        m_document.breakMerging();
        m_document.history()->undo();
    }
}

void ViewerWindow::redo()
{
    if (!m_document.isDragging()) {
        m_document.breakMerging();
        m_document.history()->redo();
    }
}

void ViewerWindow::showKeys()
{
    QMessageBox box(QMessageBox::NoIcon, tr("Keys"), QString(), QMessageBox::Ok, this);
    box.setTextFormat(Qt::PlainText);
    box.setText(tr("Diagram:\n"
                   "Wheel, + and − – zoom about the pointer; 0 or Home – all of it\n"
                   "Drag on free ground, middle button, arrow keys – move the view\n"
                   "R, G, B, W or Tab – select a primary or the white\n"
                   "Drag or arrow keys – move it; with Shift a tenth as far\n"
                   "Ctrl – towards the white; the white at its colour temperature\n"
                   "Alt – along an axis; Ctrl+Alt – without snapping\n"
                   "Alt+arrows – move the view all the same\n"
                   "Esc – cancel a drag or a move by keys; otherwise select nothing\n\n"
                   "Key:\n"
                   "Click or Space – show or hide an entry\n"
                   "Double click or Return – show it alone\n\n"
                   "Numbers:\n"
                   "Up, Down – one step; with Shift a tenth of a step, with Ctrl ten steps\n"
                   "Page Up, Page Down – ten steps\n"
                   "Esc – restore the value of the target\n\n"
                   "Wall:\n"
                   "Arrows – select the next cabinet; Esc – none\n\n"
                   "Tables:\n"
                   "Ctrl+C – copy all of the table\n"
                   "Del – remove the gamut that is selected, in the list of gamuts\n\n"
                   "Ctrl+Z – undo; Ctrl+Shift+Z or Ctrl+Y – redo\n"
                   "Ctrl+1 to Ctrl+4 – show a page\n"
                   "Esc – close the messages that have the focus\n"
                   "The menus show further keys."));
    box.exec();
}

void ViewerWindow::about()
{
    QMessageBox::about(this, tr("About the gamut viewer"),
        tr("Gamut viewer %1\n\nShows and edits the colour gamuts of LED displays on CIE chromaticity diagrams.")
            .arg(QApplication::applicationVersion()));
}

} // namespace gamutviewer
