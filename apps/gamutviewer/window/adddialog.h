// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_ADDDIALOG_H
#define GAMUTVIEWER_ADDDIALOG_H

#include "editing/openedfiles.h"

#include <QDialog>

class QComboBox;
class QLabel;
class QPushButton;

namespace gamutviewer {

/*!
 * \brief Asks what becomes of files that are opened while something is open: added, in which part, or opened alone.
 *
 * It tells what each addition changes, such as that the file is of another display.
 */
class AddDialog : public QDialog {
    Q_OBJECT

public:
    /*!
     * \param open what is open, called \a openName
     * \param mayOpenAlone whether the files can take the place of what is open
     */
    AddDialog(const DisplayDescription &open, const QString &openName, const QVector<ReadFile> &files,
        bool mayOpenAlone, QWidget *parent = nullptr);

    /*! \brief The files with the parts that were chosen. */
    const QVector<ReadFile> &files() const { return m_files; }
    /*! \brief Whether the files are to be opened alone; known once the dialog is accepted. */
    bool opensAlone() const { return m_opensAlone; }

    /*! \brief Chooses the part of the file at \a index; null for one without a gamut. */
    QComboBox *roleBox(int index) const { return m_rows.at(index).role; }
    /*! \brief What adding the file at \a index changes. */
    QLabel *note(int index) const { return m_rows.at(index).note; }
    QPushButton *addButton() const { return m_add; }
    /*! \brief Null when the files can only be added. */
    QPushButton *aloneButton() const { return m_alone; }

private:
    struct Row {
        QComboBox *role = nullptr;
        QLabel *note = nullptr;
    };

    QWidget *makeRow(int index);
    void takeRole(int index);
    void refresh();
    QString noteFor(const DisplayDescription &open, const ReadFile &file) const;

    DisplayDescription m_open;
    QVector<ReadFile> m_files;
    QVector<Row> m_rows;
    QPushButton *m_add;
    QPushButton *m_alone = nullptr;
    bool m_opensAlone = false;
};

} // namespace gamutviewer

#endif
