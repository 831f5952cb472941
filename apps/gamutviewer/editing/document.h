// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_DOCUMENT_H
#define GAMUTVIEWER_DOCUMENT_H

#include "display/followedmeasurement.h"
#include "display/gamutfiles.h"

#include <QObject>
#include <QUndoStack>

#include <functional>
#include <optional>

namespace gamutviewer {

/*!
 * \brief The display description that every page of the window shows and edits, with its history.
 *
 * A change is made at once and can be undone. Several changes between beginDrag() and endDrag() are shown as they
 * come and become one step of the history.
 */
class Document : public QObject {
    Q_OBJECT

public:
    explicit Document(QObject *parent = nullptr);

    /*! \brief What is shown: own(), with the measurement that is followed if there is one. */
    const DisplayDescription &description() const { return m_description; }
    /*! \brief What the history and the file are about: without a measurement that is followed. */
    const DisplayDescription &own() const { return m_own; }
    /*! \brief Incremented by each change of what is shown, except by steps of a drag, which change the target only. */
    int version() const { return m_version; }
    std::optional<DisplayGamut> original() const { return m_description.gamut(m_description.original); }
    std::optional<DisplayGamut> declared() const { return m_description.gamut(m_description.declared); }
    std::optional<DisplayGamut> measured() const { return m_description.gamut(m_description.measured); }
    /*!
     * \brief The gamut that is edited: the target of the description, or a default where it has none.
     *
     * The default is nobody's: ask targetIsDefault() before saying anything of the display by it.
     */
    std::optional<DisplayGamut> target() const;
    /*! \brief Whether nobody has chosen a target. */
    bool targetIsDefault() const { return m_description.target.isEmpty(); }

    /*! \brief The file that the description is saved in; empty when it has none yet. */
    const QString &fileName() const { return m_fileName; }
    /*! \brief The description as it was opened or saved last. */
    const DisplayDescription &saved() const { return m_saved; }
    bool isModified() const { return !m_history.isClean(); }
    QUndoStack *history() { return &m_history; }

    /*! \brief Shows \a description instead, without a history. \a fileName is empty when it has no file yet. */
    void open(const DisplayDescription &description, const QString &fileName);
    /*! \brief What is shown has been written to \a fileName. */
    void markSaved(const QString &fileName);

    /*!
     * \brief Changes the description as one step of the history, called \a text.
     *
     * Changes that follow one another with the same \a mergeKey other than 0 become one step, until breakMerging().
     * What is changed of nothing but the measurement that is followed is no step: that is not part of own().
     */
    void change(const DisplayDescription &description, const QString &text, int mergeKey = 0);
    void breakMerging() { ++m_mergeRun; }

    bool isDragging() const { return m_dragging; }
    void beginDrag();
    /*! \brief Shows \a description for the time being. Ignored outside of a drag. */
    void drag(const DisplayDescription &description);
    /*! \brief Ends the drag; what it changed becomes one step of the history. */
    void endDrag(const QString &text);
    /*! \brief Ends the drag with the description as it was when it began. */
    void cancelDrag();

    /*!
     * \brief Shows \a measurement over the description, its file as withFile() would add it and its wall in place of
     * that of the description; nothing: no longer.
     *
     * That is no edit: it is neither a step of the history nor saved. An edit that is based on what is shown takes over
     * nothing of it, but for a gamut that gets another part or another name by it, and for a wall of which it leaves
     * out a cabinet. The cabinets that own() leaves out are left out of what is shown, too.
     *
     * \a toKeep gives what the description takes over of it when it does, as long as it is shown; null: what is shown.
     * They differ by a cabinet that is being measured, for instance.
     *
     * Where there is not enough memory to show it, std::bad_alloc is thrown, and what was shown before is shown again;
     * see showAgain().
     */
    void showFollowed(const std::optional<FollowedMeasurement> &measurement,
        const std::function<FollowedMeasurement()> &toKeep = nullptr);
    /*! \brief The cabinet whose gamut is shown as the measured one while it is followed; empty for none. */
    QString measuredCabinet() const;
    /*! \brief Whether a wall is shown that is followed. It is not removed by an edit. */
    bool followsWall() const { return m_followed && m_followed->wall; }
    /*! \brief Whether cabinets are followed that are no wall yet. Until they are one, no wall is shown. */
    bool awaitsWall() const { return m_followed && m_followed->isOfCabinets && !m_followed->wall; }
    /*!
     * \brief What is shown, with the wall and the measured gamut of own() where they are not shown while another is
     * followed: what files are added to.
     */
    DisplayDescription withHidden() const;
    /*! \brief Whether a measurement is followed that own() does not have. */
    bool hasUnkept() const;
    /*!
     * \brief Takes the measurement that is followed into the description, as one step of the history called \a text.
     *
     * Where there is not enough memory, std::bad_alloc is thrown, and nothing has changed; see showAgain().
     */
    void keepFollowed(const QString &text);
    /*!
     * \brief Shows what is to be shown once more if there was not enough memory for it to be shown everywhere; throws
     * std::bad_alloc if there still is not.
     */
    void showAgain();

    /*! \brief Where the target's white has been after the last steps, oldest first, the present one last. */
    const QVector<QPointF> &whiteTrail() const { return m_whiteTrail; }

Q_SIGNALS:
    /*! \brief There is something else to show. */
    void changed();
    /*! \brief The description itself has changed, not only the measurement that is followed. */
    void edited();
    /*! \brief Another description has been opened. */
    void opened();
    void modifiedChanged(bool modified);
    void fileNameChanged();

private:
    class Step;

    void show(const DisplayDescription &own);
    void show(const DisplayDescription &own, const QVector<QPointF> &trail);
    void tellChanged();
    void tellDragged();
    static DisplayDescription withMeasurement(
        const DisplayDescription &own, const std::optional<FollowedMeasurement> &measurement);
    std::optional<FollowedMeasurement> toKeep() const { return m_toKeep ? m_toKeep() : m_followed; }
    static DisplayDescription shownWith(
        const DisplayDescription &own, const std::optional<FollowedMeasurement> &measurement);
    DisplayDescription withoutFollowed(const DisplayDescription &edited) const;
    QString nameIn(const DisplayDescription &edited, const QString &name) const;
    DisplayWall wallWithoutFollowed(const DisplayWall &edited) const;
    QVector<QPointF> trailWith(const DisplayDescription &description) const;

    DisplayDescription m_description;
    DisplayDescription m_own;
    std::optional<FollowedMeasurement> m_followed;
    std::function<FollowedMeasurement()> m_toKeep; // null: what is shown
    int m_version = 0;
    bool m_isHalfShown = false; // by some of those that hear of changes, and not by others
    DisplayDescription m_saved;
    QString m_fileName;
    QUndoStack m_history;
    QVector<QPointF> m_whiteTrail;
    bool m_dragging = false;
    DisplayDescription m_beforeDrag;
    int m_mergeRun = 0;
};

} // namespace gamutviewer

#endif
