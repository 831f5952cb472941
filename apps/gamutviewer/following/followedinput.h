// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_FOLLOWEDINPUT_H
#define GAMUTVIEWER_FOLLOWEDINPUT_H

#include <QByteArray>
#include <QObject>
#include <QString>

namespace gamutviewer {

/*! \brief Where the lines of a measurement come from that is followed. Nothing here ever waits. */
class FollowedInput : public QObject {
    Q_OBJECT

public:
    /*! \param fileName "-" for standard input */
    explicit FollowedInput(const QString &fileName, QObject *parent = nullptr)
        : QObject(parent)
        , m_fileName(fileName)
    {
    }

    const QString &fileName() const { return m_fileName; }
    /*! \brief The next bytes, \a most at most; nothing while no more have come. Emits restarted() before the first
     * bytes of another text. */
    virtual QByteArray read(int most) = 0;
    /*! \brief Whether there is anything to read from; otherwise it is awaited. */
    virtual bool isThere() const = 0;
    /*! \brief Whether no more bytes will come. */
    virtual bool hasEnded() const = 0;
    /*! \brief Whether the same can be read again later, as from a file. */
    virtual bool isRepeatable() const = 0;

Q_SIGNALS:
    /*! \brief read() may have something, or hasEnded(). */
    void arrived();
    /*! \brief What read() gives from now on is a text of its own: the file was replaced or truncated. */
    void restarted();

private:
    QString m_fileName;
};

} // namespace gamutviewer

#endif
