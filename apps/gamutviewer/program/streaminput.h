// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_STREAMINPUT_H
#define GAMUTVIEWER_STREAMINPUT_H

#include "following/followedinput.h"

#include <QSocketNotifier>
#include <QTimer>

#include <cstdio>
#include <memory>

namespace gamutviewer {

/*! \brief A pipe or a device, by its descriptor: the event loop tells when something comes. */
class StreamInput : public FollowedInput {
    Q_OBJECT

public:
    /*! \brief What becomes of the descriptor when whoever writes to it closes it. */
    enum class AtEnd {
        Ends, //!< nothing more will come: standard input
        AwaitsWriter //!< another program may open it: a named pipe. The descriptor is closed with the input
    };

    StreamInput(const QString &fileName, int descriptor, AtEnd atEnd, QObject *parent = nullptr);
    ~StreamInput() override;

    QByteArray read(int most) override;
    bool isThere() const override { return m_isThere; }
    bool hasEnded() const override { return m_hasEnded; }
    bool isRepeatable() const override { return false; }

private:
    int m_descriptor;
    AtEnd m_atEnd;
    QSocketNotifier m_notifier;
    QTimer m_writer; // when to look for another writer
    bool m_isThere = true;
    bool m_hasEnded = false;
};

/*! \brief A stream that is read by a thread that waits for it, where the event loop cannot. */
class ThreadInput : public FollowedInput {
    Q_OBJECT

public:
    /*! \param stream must stay open for as long as the program runs, as the thread cannot be called back */
    ThreadInput(const QString &fileName, std::FILE *stream, QObject *parent = nullptr);
    ~ThreadInput() override;

    QByteArray read(int most) override;
    bool isThere() const override { return true; }
    bool hasEnded() const override;
    bool isRepeatable() const override { return false; }

private:
    struct Shared;
    static void readAll(const std::shared_ptr<Shared> &shared, std::FILE *stream);

    std::shared_ptr<Shared> m_shared;
};

/*! \brief What is to be followed, or why it cannot be. */
struct InputToFollow {
    std::unique_ptr<FollowedInput> input; //!< nothing when there is an error
    QString error; //!< one line for people that names the file
};

/*!
 * \brief Opens \a fileName to be followed: "-" for standard input, a file, which need not be there yet, a named pipe or
 * a device.
 */
InputToFollow inputToFollow(const QString &fileName);

} // namespace gamutviewer

#endif
