// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_FOLLOWEDFILE_H
#define GAMUTVIEWER_FOLLOWEDFILE_H

#include "following/followedinput.h"

#include <QElapsedTimer>
#include <QFileSystemWatcher>
#include <QTimer>
#include <QVector>

class QFile;

namespace gamutviewer {

/*!
 * \brief A file that grows. It may not be there yet, may go and come again, be replaced and be truncated.
 *
 * Whether it is the same text as before is told by its content: by the last bytes that were read at once, and by all of
 * it in turn, up to a second later for a list of a megabyte. So a tool may also write the whole of its list anew for
 * every line that it adds. The file is open only while it is read, so that others can rename and remove it.
 */
class FollowedFile : public FollowedInput {
    Q_OBJECT

public:
    explicit FollowedFile(const QString &fileName, QObject *parent = nullptr);

    QByteArray read(int most) override;
    bool isThere() const override { return m_isThere; }
    bool hasEnded() const override { return false; }
    bool isRepeatable() const override { return true; }

private:
    void watch();
    void lookSoon();
    void look();
    void keep(const QByteArray &bytes);
    bool isAsRead(QFile &file);
    void forget();

    QString m_path; // whatever becomes of the current folder
    QFileSystemWatcher m_watcher;
    QTimer m_soon;
    QTimer m_slow;
    qint64 m_position = 0; // up to which it has been read
    QByteArray m_tail; // the last bytes before
    QVector<QByteArray> m_blocks; // digests of what was read, block by block
    QByteArray m_block; // what was read after these
    int m_nextBlock = 0; // to be compared with the file
    QElapsedTimer m_sinceCompared; // not valid: never
    bool m_isThere = false;
};

} // namespace gamutviewer

#endif
