// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_LISTDIALOG_H
#define GAMUTVIEWER_LISTDIALOG_H

#include "editing/openedfiles.h"
#include "editing/targetedits.h"

#include <QDialog>

class QComboBox;
class QLabel;
class QPlainTextEdit;
class QPushButton;

namespace gamutviewer {

/*!
 * \brief Asks what a measurement list means where the list does not say: which measurement is red, what the unit is, of
 * which cabinet it is to be.
 *
 * It shows how the list is understood with what has been chosen so far.
 */
class ListDialog : public QDialog {
    Q_OBJECT

public:
    /*! \param fileName a file that can be read more than once */
    ListDialog(const QString &fileName, const MeasurementOptions &options, QWidget *parent = nullptr);

    /*! \brief Whether the dialog can read \a fileName: it is no pipe, which would be empty now. */
    static bool canReadAgain(const QString &fileName);

    /*! \brief Whether the user can help with \a read, the outcome of reading the file \a fileName by \a options. */
    static bool canHelp(const QString &fileName, const MeasurementOptions &options, const Outcome<GamutFile> &read);

    /*! \brief The list as it is read with what was chosen. */
    const Outcome<GamutFile> &read() const { return m_read; }

    /*! \brief Whether the cabinets of the list are to be the wall of the display. */
    bool isWall() const;

    /*! \brief What is asked of the list. */
    QLabel *question() const { return m_question; }
    QComboBox *unit() const { return m_unit; }
    QComboBox *decimalSign() const { return m_decimalSign; }
    /*! \brief Chooses the whole wall or one cabinet; hidden for a list that has no more than one. */
    QComboBox *cabinet() const { return m_cabinet; }
    /*! \brief Chooses the measurement that is \a vertex. */
    QComboBox *choice(Vertex vertex) const { return m_choices.at(int(vertex)); }
    /*! \brief How the list is understood, and what is still amiss. */
    QPlainTextEdit *preview() const { return m_preview; }
    QPushButton *useButton() const { return m_use; }

private:
    QString questionText() const;
    void fillCabinets();
    void fillChoices();
    void take();
    void readAsChosen();
    void refresh();

    QString m_fileName;
    MeasurementOptions m_options;
    Outcome<GamutFile> m_read;
    QLabel *m_question;
    QComboBox *m_unit;
    QComboBox *m_decimalSign;
    QComboBox *m_cabinet;
    QLabel *m_cabinetLabel;
    QVector<QComboBox *> m_choices;
    QPlainTextEdit *m_preview;
    QPushButton *m_use;
};

} // namespace gamutviewer

#endif
