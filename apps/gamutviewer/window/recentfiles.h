// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_RECENTFILES_H
#define GAMUTVIEWER_RECENTFILES_H

#include <QStringList>

namespace gamutviewer {

/*! \brief The files opened or saved last, newest first, kept in the settings of the user. */
class RecentFiles {
public:
    static constexpr int most = 8;

    static QStringList list();
    /*! \brief Only what is a file: a pipe cannot be opened again. */
    static void add(const QString &fileName);
    static void remove(const QString &fileName);
    static void clear();

    /*! \brief The folder of the file that was opened, saved or exported last; where the program runs before that. */
    static QString folder();
    static void setFolderOf(const QString &fileName);
};

} // namespace gamutviewer

#endif
