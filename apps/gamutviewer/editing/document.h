// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_DOCUMENT_H
#define GAMUTVIEWER_DOCUMENT_H

#include "display/gamutfiles.h"

#include <QObject>
#include <QUndoStack>

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

    const DisplayDescription &description() const { return m_description; }
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

    /*! \brief Where the target's white has been after the last steps, oldest first, the present one last. */
    const QVector<QPointF> &whiteTrail() const { return m_whiteTrail; }

Q_SIGNALS:
    /*! \brief There is something else to show. */
    void changed();
    /*! \brief Another description has been opened. */
    void opened();
    void modifiedChanged(bool modified);
    void fileNameChanged();

private:
    class Step;

    void show(const DisplayDescription &description);
    void show(const DisplayDescription &description, const QVector<QPointF> &trail);
    QVector<QPointF> trailWith(const DisplayDescription &description) const;

    DisplayDescription m_description;
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
