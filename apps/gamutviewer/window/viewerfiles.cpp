// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "display/messages.h"
#include "display/samples.h"
#include "editing/wallcorrections.h"
#include "panel/sidepanel.h"
#include "panel/targeteditor.h"
#include "panel/warningbar.h"
#include "window/adddialog.h"
#include "window/filenames.h"
#include "window/listdialog.h"
#include "window/recentfiles.h"
#include "window/viewerwindow.h"
#include "window/wallpage.h"

#include <QApplication>
#include <QDir>
#include <QDropEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QMimeData>
#include <QSet>
#include <QStatusBar>
#include <QTabWidget>

#include <algorithm>
#include <iterator>
#include <new>

namespace gamutviewer {

namespace {

const QString descriptionSuffix = QStringLiteral("json");

QStringList localFiles(const QMimeData *data)
{
    QStringList files;
    for (const QUrl &url : data->urls()) {
        if (url.isLocalFile()) {
            files.append(url.toLocalFile());
        }
    }
    return files;
}

QStringList messages(const QVector<FileWarning> &warnings)
{
    QStringList lines;
    for (const FileWarning &warning : warnings) {
        lines.append(warning.message());
    }
    return lines;
}

//! A list for a person: with the names of the files, not with all of their folders.
QStringList shortMessages(const QVector<FileWarning> &warnings)
{
    QStringList lines;
    for (const FileWarning &warning : warnings) {
        lines.append(warning.problem.message(QFileInfo(warning.fileName).fileName()));
    }
    return lines;
}

void print(const QVector<FileWarning> &warnings)
{
    for (const QString &line : messages(warnings)) {
        printError(line);
    }
}

//! What \a write returns: why it could not. Thrown through the event loop, a lack of memory would end the program, and
//! with it what is open.
template <typename Write>
QString whyNotWritten(const Write &write)
{
    try {
        return write();
    } catch (const std::bad_alloc &) {
        return memoryIsShort();
    }
}

//! What \a read returns, or a failure for lack of memory, as in whyNotWritten().
template <typename Read>
Outcome<QVector<ReadFile>> readOrFailure(const QStringList &fileNames, const Read &read)
{
    try {
        return read();
    } catch (const std::bad_alloc &) {
        return Outcome<QVector<ReadFile>>::failure(
            ViewerWindow::tr("%1: cannot be read: %2").arg(fileNames.join(QLatin1String(", ")), memoryIsShort()));
    }
}

} // namespace

void ViewerWindow::setDescription(const DisplayDescription &description, const QString &fileName)
{
    m_shownFile = isStandardInput(fileName) ? QString() : fileName;
    const QString path = QFileInfo(fileName).canonicalFilePath(); // empty where there is no such file
    m_isSample = !path.isEmpty() && path == QFileInfo(sampleFile()).canonicalFilePath();
    m_document.open(description, m_isSample ? QString() : m_shownFile);
    m_warnings->setWarnings({});
    m_panel->setFileNotes({});
    fitPanel();
}

void ViewerWindow::setOpened(const OpenedFiles &opened)
{
    const bool isDescription = !opened.descriptionFile.isEmpty();
    setDescription(isDescription ? opened.inDescriptionFile : opened.description, opened.descriptionFile);
    QStringList additions = opened.fileNames;
    additions.removeOne(opened.descriptionFile);
    if (isDescription && !additions.isEmpty()) {
        m_document.change(opened.description, stepName(additions));
    }
    if (!isDescription && !isStandardInput(opened.fileNames.value(0))) {
        m_shownFile = opened.fileNames.value(0);
    }
    m_warnings->setWarnings(shortMessages(opened.warnings));
    m_panel->setFileNotes(opened.notes);
    for (int i = opened.fileNames.size() - 1; i >= 0; --i) {
        if (!m_isSample || opened.fileNames.at(i) != opened.descriptionFile) {
            RecentFiles::add(opened.fileNames.at(i));
        }
    }
    if (!opened.description.wall.cabinets.empty() && opened.inDescriptionFile.wall.cabinets.empty()) {
        m_pages->setCurrentWidget(m_wallPage); // as when a list of cabinets is opened in the window
    }
    refreshTitle();
}

QString ViewerWindow::stepName(const QStringList &added)
{
    return added.size() == 1 ? tr("add %1").arg(oneLine(QFileInfo(added.first()).fileName()))
                             : tr("add %1 files").arg(added.size());
}

bool ViewerWindow::givesWay() const
{
    return !m_document.isModified() && (m_isSample || isEmpty(m_document.own()));
}

void ViewerWindow::newDocument()
{
    if (closeDocument()) {
        statusBar()->showMessage(tr("Nothing is known of this display yet: open its files, or drop them here."));
    }
}

bool ViewerWindow::closeDocument()
{
    if (!mayLoseChanges()) {
        return false;
    }
    setOpened({});
    return true;
}

void ViewerWindow::openByDialog(Manner manner)
{
    const QStringList files
        = QFileDialog::getOpenFileNames(this, manner == Manner::Open ? tr("Open") : tr("Add"), RecentFiles::folder(),
            tr("Displays and gamuts (%1)").arg(gamutFilePatterns().join(QLatin1Char(' '))) + QStringLiteral(";;")
                + tr("All files (*)"));
    if (!files.isEmpty()) {
        openPaths(files, manner);
    }
}

bool ViewerWindow::canAskAbout(const QStringList &fileNames)
{
    return std::all_of(fileNames.begin(), fileNames.end(), &ListDialog::canReadAgain);
}

void ViewerWindow::openWithQuestions(
    const QStringList &fileNames, const MeasurementOptions &options, const OpenedChange &change)
{
    const auto read = readPaths(fileNames, options);
    if (!read) {
        return;
    }
    const Outcome<OpenedFiles> opened = change(openedAlone(*read));
    if (!opened) {
        warn(opened.error());
        return;
    }
    print(opened->warnings);
    setOpened(*opened);
    showWallOf(*read);
}

bool ViewerWindow::openPaths(const QStringList &fileNames, Manner manner, const MeasurementOptions &options)
{
    const auto read = readPaths(fileNames, options);
    return read && openRead(*read, manner);
}

//! Asks what measurement lists mean. Nothing if a file cannot be read, which is told, or if the user cancels.
std::optional<QVector<ReadFile>> ViewerWindow::readPaths(
    const QStringList &fileNames, const MeasurementOptions &options)
{
    bool isCanceled = false;
    QSet<QString> walls; // the lists whose cabinets are to be the wall
    const auto readFile = [&](const QString &fileName) {
        const Outcome<GamutFile> file = readGamutFile(fileName, options);
        if (!ListDialog::canHelp(fileName, options, file)) {
            return file;
        }
        ListDialog dialog(fileName, options, this);
        isCanceled = dialog.exec() != QDialog::Accepted;
        if (dialog.isWall()) {
            walls.insert(fileName);
        }
        return isCanceled ? Outcome<GamutFile>::failure(QString()) : dialog.read();
    };
    const auto read = readOrFailure(fileNames, [&] { return readFiles(fileNames, readFile); });
    if (isCanceled) {
        return std::nullopt;
    }
    if (!read) {
        if (fileNames.size() == 1) {
            RecentFiles::remove(fileNames.first());
        }
        warn(read.error());
        return std::nullopt;
    }
    QVector<ReadFile> files = *read;
    for (ReadFile &file : files) {
        if (walls.contains(file.fileName)) {
            if (const auto wall = asWall(file)) {
                file = *wall;
            }
        }
    }
    return files;
}

bool ViewerWindow::openWall(const QString &fileName)
{
    MeasurementOptions options;
    options.isWall = true;
    const auto readFile = [&options](const QString &file) { return readGamutFile(file, options); };
    const auto read = readOrFailure({fileName}, [&] { return readFiles({fileName}, readFile); });
    const auto wall = read ? asWall(read->constFirst()) : Outcome<ReadFile>::failure(read.problem());
    if (!wall) {
        warn(wall.error());
        return false;
    }
    return openRead({*wall}, Manner::Open);
}

QStringList ViewerWindow::listsToReadAgain() const
{
    QStringList files;
    for (const FileRecognition &list : m_panel->fileNotes().lists) {
        if (ListDialog::canReadAgain(list.fileName) && !files.contains(list.fileName)) {
            files.append(list.fileName);
        }
    }
    return files;
}

bool ViewerWindow::readAgain(const QString &fileName)
{
    m_panel->editor()->takeTyped();
    ListDialog dialog(fileName, {}, this);
    if (dialog.exec() != QDialog::Accepted || !dialog.read()) {
        return false;
    }
    ReadFile file{fileName, *dialog.read(), dialog.read().warnings(), usualRole(*dialog.read()), std::nullopt};
    if (dialog.isWall()) {
        if (const auto wall = asWall(file)) {
            file = *wall;
        }
    }
    const QStringList warningsBefore = m_warnings->warnings();
    if (!openByQuestion({file}, Manner::Add)) {
        return false;
    }
    // What was said of the other reading holds no longer.
    const auto isOfList = [&fileName](const FileRecognition &list) { return list.fileName == fileName; };
    FileNotes notes = m_panel->fileNotes();
    if (std::count_if(notes.lists.begin(), notes.lists.end(), isOfList) > 1) {
        notes.lists.erase(std::find_if(notes.lists.begin(), notes.lists.end(), isOfList));
        m_panel->setFileNotes(notes);
    }
    const QString start = QFileInfo(fileName).fileName() + QLatin1Char(':');
    QStringList warnings;
    std::copy_if(warningsBefore.begin(), warningsBefore.end(), std::back_inserter(warnings),
        [&start](const QString &warning) { return !warning.startsWith(start); });
    m_warnings->setWarnings(warnings + m_warnings->warnings().mid(warningsBefore.size()));
    showWallOf({file});
    return true;
}

bool ViewerWindow::openRead(const QVector<ReadFile> &files, Manner manner)
{
    m_panel->editor()->takeTyped();
    const bool isOpened = givesWay() ? openAlone(files) : openByQuestion(files, manner);
    if (isOpened) {
        showWallOf(files);
    }
    return isOpened;
}

//! Shows the page of walls if \a files have one.
void ViewerWindow::showWallOf(const QVector<ReadFile> &files)
{
    if (std::any_of(files.cbegin(), files.cend(), [](const ReadFile &file) { return bool(file.wall); })) {
        m_pages->setCurrentWidget(m_wallPage);
    }
}

bool ViewerWindow::openAlone(const QVector<ReadFile> &files)
{
    if (!mayLoseChanges()) {
        return false;
    }
    const OpenedFiles opened = openedAlone(files);
    print(opened.warnings);
    setOpened(opened);
    return true;
}

bool ViewerWindow::openByQuestion(const QVector<ReadFile> &files, Manner manner)
{
    AddDialog dialog(m_document.withHidden(), shownName(), files, manner == Manner::Open, this);
    if (dialog.exec() != QDialog::Accepted) {
        return false;
    }
    if (dialog.opensAlone()) {
        return openAlone(files);
    }
    addFiles(dialog.files());
    return true;
}

void ViewerWindow::addFiles(const QVector<ReadFile> &files)
{
    const OpenedFiles opened = openedWith(m_document.withHidden(), files);
    m_document.change(opened.description, stepName(opened.fileNames));
    addWarnings(opened.warnings);
    m_panel->addFileNotes(opened.notes);
    for (int i = opened.fileNames.size() - 1; i >= 0; --i) {
        RecentFiles::add(opened.fileNames.at(i));
    }
}

//! Warnings of a file that is used besides those that were opened.
void ViewerWindow::addWarnings(const QVector<FileWarning> &warnings)
{
    print(warnings);
    m_warnings->addWarnings(shortMessages(warnings));
}

QString ViewerWindow::proposedPath(const QString &suffix) const
{
    QString name = safeFileName(m_document.description().name);
    if (name.isEmpty()) {
        name = safeFileName(QFileInfo(m_shownFile).completeBaseName());
    }
    if (name.isEmpty()) {
        name = tr("display", "proposed name of a file");
    }
    return QDir(RecentFiles::folder()).filePath(QStringLiteral("%1.%2").arg(name, suffix));
}

bool ViewerWindow::save()
{
    return m_document.fileName().isEmpty() ? saveAs() : saveTo(m_document.fileName());
}

bool ViewerWindow::saveAs()
{
    m_panel->editor()->takeTyped();
    const QFileInfo proposed(m_document.fileName().isEmpty() ? proposedPath(descriptionSuffix) : m_document.fileName());
    QFileDialog dialog(this, tr("Save as"), proposed.path(), tr("Display descriptions (*.json)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(descriptionSuffix);
    dialog.selectFile(proposed.fileName());
    return dialog.exec() == QDialog::Accepted && saveTo(dialog.selectedFiles().constFirst());
}

bool ViewerWindow::saveTo(const QString &fileName)
{
    m_panel->editor()->takeTyped();
    const QString error = whyNotWritten([&] { return writeDescription(m_document.own(), fileName); });
    if (!error.isEmpty()) {
        warn(tr("%1: cannot be written: %2").arg(fileName, error));
        return false;
    }
    m_shownFile = fileName;
    m_isSample = false;
    m_document.markSaved(fileName);
    RecentFiles::add(fileName);
    showBriefly((m_document.hasUnkept() ? tr("Saved as %1, without the measurement in progress") : tr("Saved as %1"))
                    .arg(oneLine(fileName)));
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
    const QString error = whyNotWritten(
        [&] { return exportPicture(picture, m_document.description().name, extent, *format, fileName); });
    QApplication::restoreOverrideCursor();
    if (!error.isEmpty()) {
        warn(tr("%1: cannot be written: %2").arg(fileName, error));
        return false;
    }
    RecentFiles::setFolderOf(fileName);
    showBriefly((lacksRoomForKey(picture, extent.size) ? tr("Exported to %1, without a key for lack of room")
                                                       : tr("Exported to %1"))
                    .arg(oneLine(fileName)));
    return true;
}

void ViewerWindow::exportCorrectionsByDialog()
{
    m_panel->editor()->takeTyped();
    const QFileInfo proposed(proposedPath(QStringLiteral("csv")));
    QFileDialog dialog(this, tr("Export corrections"), proposed.path(),
        tr("Corrections (*.csv)") + QStringLiteral(";;") + tr("Corrections (*.json)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("csv"));
    connect(&dialog, &QFileDialog::filterSelected, &dialog, [&dialog](const QString &filter) {
        dialog.setDefaultSuffix(
            filter.contains(QLatin1String("json")) ? QStringLiteral("json") : QStringLiteral("csv"));
    });
    dialog.selectFile(
        tr("%1 corrections", "proposed name of a file, without its suffix").arg(proposed.completeBaseName())
        + QStringLiteral(".csv"));
    if (dialog.exec() == QDialog::Accepted) {
        exportCorrectionsTo(dialog.selectedFiles().constFirst());
    }
}

bool ViewerWindow::exportCorrectionsTo(const QString &fileName)
{
    const auto made = corrections(m_document.description(), QString(), fileName);
    if (!made) {
        warn(tr("%1: cannot be written: %2").arg(fileName, made.error()));
        return false;
    }
    for (const CorrectionsOutput &file : made->files) {
        const QString error = whyNotWritten([&] { return writeBytes(file.bytes, file.fileName); });
        if (!error.isEmpty()) {
            warn(tr("%1: cannot be written: %2").arg(file.fileName, error));
            return false;
        }
    }
    QStringList notes;
    for (const QString &note : made->notes) {
        notes.append(QStringLiteral("%1: %2").arg(QFileInfo(fileName).fileName(), note));
    }
    m_warnings->addWarnings(notes);
    RecentFiles::setFolderOf(fileName);
    showBriefly(tr("Corrections exported to %1").arg(oneLine(fileName)));
    return true;
}

bool ViewerWindow::mayLoseChanges()
{
    m_panel->editor()->takeTyped();
    if (!m_document.isModified()) {
        return true;
    }
    // What the changes would be saved in, or else what they are of, as the title calls it.
    const QString file = QFileInfo(m_document.fileName()).fileName();
    const QString name = file.isEmpty() ? shownName() : oneLine(file);
    QMessageBox box(QMessageBox::Warning, tr("Unsaved changes"),
        tr("\"%1\" has been modified. Save the changes?").arg(name),
        QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, this);
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::Save);
    const int answer = box.exec();
    return answer == QMessageBox::Save ? save() : answer == QMessageBox::Discard;
}

QString ViewerWindow::shownName() const
{
    const QString name = m_document.description().name;
    const QString file = QFileInfo(m_document.fileName().isEmpty() ? m_shownFile : m_document.fileName()).fileName();
    const QString shown = oneLine(!name.isEmpty() ? name : !file.isEmpty() ? file : tr("Untitled"));
    return m_isSample ? tr("%1 (sample)").arg(shown) : shown;
}

void ViewerWindow::refreshTitle()
{
    setWindowTitle(tr("%1[*] – Gamut viewer").arg(shownName().replace(QLatin1String("[*]"), QLatin1String("[*][*]"))));
    setWindowFilePath(m_document.fileName());
}

bool ViewerWindow::eventFilter(QObject *watched, QEvent *event)
{
    const bool isDrop
        = event->type() == QEvent::DragEnter || event->type() == QEvent::DragMove || event->type() == QEvent::Drop;
    const auto *widget = isDrop ? qobject_cast<QWidget *>(watched) : nullptr;
    if (!widget || widget->window() != this) {
        return QMainWindow::eventFilter(watched, event);
    }
    // Fields and charts would take the name of a file for a text, or refuse it.
    auto *drop = static_cast<QDropEvent *>(event);
    const QStringList files = localFiles(drop->mimeData());
    if (files.isEmpty()) {
        return QMainWindow::eventFilter(watched, event);
    }
    drop->setDropAction(Qt::CopyAction);
    drop->accept();
    if (event->type() == QEvent::Drop) {
        // The program that the files come from waits for the drop to end, and a question may be asked.
        QMetaObject::invokeMethod(
            this, [this, files] { openPaths(files); }, Qt::QueuedConnection);
    }
    return true;
}

} // namespace gamutviewer
