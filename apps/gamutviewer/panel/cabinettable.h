// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_CABINETTABLE_H
#define GAMUTVIEWER_CABINETTABLE_H

#include <QStringList>
#include <QTableView>

namespace gamutviewer {

class CabinetModel;
class TargetSession;

/*! \brief The table of the wall's cabinets, worst first or as a header is clicked; it is copied as a CopyTable is. */
class CabinetTable : public QTableView {
    Q_OBJECT

public:
    explicit CabinetTable(TargetSession *session, QWidget *parent = nullptr);

    CabinetModel *cabinets() const { return m_model; }
    /*! \brief Shows the wall as it is now. */
    void refresh();
    /*! \brief The width with which all columns are seen. */
    int wholeWidth() const;
    /*! \brief The worst first again. */
    void sortByJudgement();
    /*! \brief Copies all of the table to the clipboard. */
    void copy();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void showSelection();
    void fitColumns();
    int nameWidth(const QStringList &names) const;

    TargetSession *m_session;
    CabinetModel *m_model;
    QStringList m_names; // that the first column is fitted to
    QString m_unit; // the header with the unit that the columns are fitted to
    bool m_isShowing = false; // the selection of the session, which is not to be told of it
};

} // namespace gamutviewer

#endif
