// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "window/followmenu.h"

#include "editing/document.h"
#include "following/followedfile.h"
#include "following/following.h"
#include "window/recentfiles.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QLocale>
#include <QTextDocument>

#include <new>

namespace gamutviewer {

namespace {

QString shownName(const FollowedInput &input)
{
    return oneLine(
        isStandardInput(input.fileName()) ? nameByFile(input.fileName()) : QFileInfo(input.fileName()).fileName());
}

} // namespace

FollowMenu::FollowMenu(Document *document, QWidget *parent)
    : QMenu(tr("&Measurement in progress"), parent)
    , m_document(document)
    , m_label(new QLabel(parent))
{
    m_follow = addAction(tr("&Follow…"), this, &FollowMenu::followByDialog);
    m_keep = addAction(tr("&Keep the measurement"), this, &FollowMenu::keep);
    m_stop = addAction(tr("&Stop following"), this, &FollowMenu::stop);
    m_label->setTextFormat(Qt::PlainText);
    refresh();
}

FollowMenu::~FollowMenu() = default;

void FollowMenu::follow(std::unique_ptr<FollowedInput> input, const MeasurementOptions &options)
{
    if (!stop()) {
        return;
    }
    m_following = std::make_unique<Following>(std::move(input), options);
    connect(m_following.get(), &Following::measured, this, &FollowMenu::show);
    connect(m_following.get(), &Following::stateChanged, this, &FollowMenu::refresh);
    refresh();
}

void FollowMenu::followByDialog()
{
    const QString fileName
        = QFileDialog::getOpenFileName(parentWidget(), tr("Follow a measurement"), RecentFiles::folder(),
            tr("Measurement lists (*.csv *.tsv *.txt)") + QStringLiteral(";;") + tr("All files (*)"));
    if (!fileName.isEmpty()) {
        follow(std::make_unique<FollowedFile>(fileName));
    }
}

/*!
 * \brief Whether there was memory for \a action, if anything is followed; if not, it is followed no further.
 *
 * Thrown through the event loop, a lack of memory would end the program, and with it what is open.
 */
template <typename Action>
bool FollowMenu::whileMemoryLasts(const Action &action)
{
    if (!m_following) {
        return true;
    }
    try {
        action();
        return true;
    } catch (const std::bad_alloc &) {
        m_following->breakOff();
        return false;
    }
}

void FollowMenu::show()
{
    whileMemoryLasts([this] { showLatest(); });
}

void FollowMenu::showLatest()
{
    m_document->showFollowed(
        m_following->inProgress(), [following = m_following.get()] { return following->asIfEnded(); });
}

bool FollowMenu::keep()
{
    return whileMemoryLasts([this] {
        m_following->readWhatCame();
        showLatest(); // with what came since the last frame
        m_document->keepFollowed(tr("keep %1").arg(shownName(m_following->input())));
    });
}

bool FollowMenu::stop()
{
    if (!keep() || !whileMemoryLasts([this] { m_document->showFollowed(std::nullopt); })) {
        return false;
    }
    m_following.reset();
    refresh();
    return true;
}

bool FollowMenu::keepWhatWouldBeLost()
{
    bool isToBeKept = false;
    const bool isKnown
        = whileMemoryLasts([&] { isToBeKept = !m_following->input().isRepeatable() && m_document->hasUnkept(); });
    return isKnown && (!isToBeKept || keep());
}

QString FollowMenu::text() const
{
    return m_following->hasOtherUnit()
        ? tr("%1; the unit has changed: without what came before it", "how far a measurement has been followed")
              .arg(progressText())
        : progressText();
}

QString FollowMenu::progressText() const
{
    const QLocale locale;
    const FollowedInput &input = m_following->input();
    const MeasurementStreamState &state = m_following->state();
    const QString name = shownName(input);
    // At the beginning of a sentence; a file is named as it is.
    const QString subject = isStandardInput(input.fileName()) ? name.left(1).toUpper() + name.mid(1) : name;
    const QString lines
        = state.lines == 1 ? tr("1 line") : tr("%1 lines", "of a measurement").arg(locale.toString(state.lines));
    const QString notRead = locale.toString(state.notRead);
    if (m_following->isMemoryShort()) {
        return tr("%1 is followed no further, as there is not enough memory: %2, %3 not read")
            .arg(subject, lines, notRead);
    }
    if (input.hasEnded()) {
        return tr("%1 has ended: %2, %3 not read").arg(subject, lines, notRead);
    }
    if (!input.isThere()) {
        return tr("Waiting for %1").arg(name);
    }
    return tr("Following %1: %2, %3 not read, %4 a second")
        .arg(name, lines, notRead, locale.toString(m_following->linesPerSecond()));
}

QString FollowMenu::details() const
{
    const MeasurementStreamState &state = m_following->state();
    QStringList lines;
    if (state.notRead > 0) {
        lines.append(tr("The last line that was not read: %1").arg(state.lastNotRead.message()));
    }
    if (!state.waitsFor.text.isEmpty()) {
        lines.append(tr("Lines wait to be read: %1").arg(state.waitsFor.message()));
    }
    for (const Problem &warning : state.warnings) {
        lines.append(warning.message());
    }
    return lines.join(QLatin1Char('\n'));
}

void FollowMenu::refresh()
{
    if (!m_following) {
        refreshLabel();
        return;
    }
    // Where memory is short, at the next time.
    whileMemoryLasts([this] {
        m_document->showAgain();
        refreshLabel();
    });
}

void FollowMenu::refreshLabel()
{
    m_keep->setEnabled(m_following != nullptr);
    m_stop->setEnabled(m_following != nullptr);
    m_label->setVisible(m_following != nullptr);
    const QString shown = m_following ? text() : QString();
    if (m_label->text() != shown) {
        m_label->setText(shown);
    }
    const QString told = m_following ? details() : QString();
    if (m_label->accessibleDescription() != told) {
        m_label->setAccessibleDescription(told);
        // Parts of the list stand in it, which are text and no markup.
        m_label->setToolTip(told.isEmpty() ? QString() : Qt::convertFromPlainText(told));
    }
}

} // namespace gamutviewer
