// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef SYSTEM_SYSTEMPATH_P_H
#define SYSTEM_SYSTEMPATH_P_H

#include <QFile>
#include <QString>

#include <filesystem>

namespace systemcalls {

/*! \brief The path of a file by its name in Qt. */
inline std::filesystem::path systemPath(const QString &fileName)
{
#ifdef Q_OS_WIN
    return fileName.toStdWString();
#else
    return QFile::encodeName(fileName).toStdString();
#endif
}

} // namespace systemcalls

#endif
