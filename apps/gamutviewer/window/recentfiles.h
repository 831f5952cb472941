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
    static void add(const QString &fileName);
    static void remove(const QString &fileName);
    static void clear();
};

} // namespace gamutviewer

#endif
