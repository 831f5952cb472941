// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "expect.h"

#include <system/systemcalls_p.h>

#include <cstdio>
#include <string>
#include <thread>

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#include <windows.h>
#else
#include <cstdlib>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace {

namespace fs = std::filesystem;

void text(Expectations &expectations)
{
    const auto converted = systemcalls::fromGb18030("\xC9\xAB\xB6\xC8 \x81\x30\x81\x30\xA8\xA2");
    if (!converted.available) {
        std::puts("this system has no converter for GB18030");
        return;
    }
    // Two common characters, a space, the first of the four-byte characters (U+0080), and a letter with an accent.
    expectations.expect(converted.utf8 == "\xE8\x89\xB2\xE5\xBA\xA6 \xC2\x80\xC3\xA1", "GB18030");
    expectations.expect(systemcalls::fromGb18030("").utf8 == std::string(), "no text");
    expectations.expect(!systemcalls::fromGb18030("\xC9\xAB\xFF").utf8, "not GB18030");
}

void files(Expectations &expectations)
{
    const fs::path file = fs::temp_directory_path() / "ceiechart-systemcallstest";
    if (std::FILE *made = std::fopen(file.string().c_str(), "w")) {
        std::fclose(made);
    }
    expectations.expect(fs::exists(file) && !systemcalls::isNamedPipe(file), "a file is no pipe");
    fs::remove(file);
    expectations.expect(!systemcalls::isNamedPipe(file), "what is not there is no pipe");
    expectations.expect(!systemcalls::isNamedPipe("/dev/stdin"), "standard input is no named pipe");
}

#ifdef _WIN32

int writeTo(int descriptor, const char *bytes, unsigned length)
{
    return _write(descriptor, bytes, length);
}

void pipes(Expectations &expectations)
{
    const wchar_t *name = L"\\\\.\\pipe\\ceiechart-systemcallstest";
    expectations.expect(systemcalls::isNamedPipe(name), "a pipe by its name");
    expectations.expect(systemcalls::isNamedPipe("//./PIPE/other"), "a pipe by its name with slashes");
    expectations.expect(!systemcalls::openNamedPipe(name), "a pipe that no program has made");
    const HANDLE pipe = CreateNamedPipeW(name, PIPE_ACCESS_INBOUND, PIPE_TYPE_BYTE, 1, 0, 64, 0, nullptr);
    expectations.expect(pipe != INVALID_HANDLE_VALUE, "the pipe is made");
    std::string read;
    std::thread reader([pipe, &read] {
        ConnectNamedPipe(pipe, nullptr);
        char bytes[16];
        DWORD length = 0;
        while (ReadFile(pipe, bytes, sizeof bytes, &length, nullptr) != FALSE && length > 0) {
            read.append(bytes, length);
        }
    });
    const auto descriptor = systemcalls::openNamedPipe(name);
    expectations.expect(descriptor.has_value(), "a pipe with a reader opens");
    if (descriptor) {
        expectations.expect(writeTo(*descriptor, "a\nb", 3) == 3, "writing");
        systemcalls::closeStream(*descriptor);
        reader.join();
    } else {
        reader.detach();
    }
    expectations.expect(read == "a\nb", "what was written has come, without a change of line ends");
    CloseHandle(pipe);
    expectations.expect(!systemcalls::standardInput(), "no stream is read without waiting");
    systemcalls::useBinaryStreams();
    expectations.expect(_setmode(_fileno(stdin), _O_BINARY) == _O_BINARY, "standard input passes bytes");
    expectations.expect(_setmode(_fileno(stdout), _O_BINARY) == _O_BINARY, "standard output passes bytes");
}

#else

void pipes(Expectations &expectations)
{
    char folder[] = "/tmp/ceiechart-systemcallstest-XXXXXX";
    expectations.expect(::mkdtemp(folder) != nullptr, "a folder for the pipe");
    const fs::path name = fs::path(folder) / "pipe";
    expectations.expect(::mkfifo(name.c_str(), 0600) == 0, "the pipe is made");
    expectations.expect(systemcalls::isNamedPipe(name), "a pipe");
    expectations.expect(!systemcalls::openNamedPipe(name), "a pipe from which no program reads");
    const auto reader = systemcalls::openStream(name);
    expectations.expect(reader.has_value(), "opening for reading waits for no one");
    const auto writer = systemcalls::openNamedPipe(name);
    expectations.expect(writer.has_value(), "a pipe with a reader opens");
    if (reader && writer) {
        char bytes[8];
        expectations.expect(systemcalls::readStream(*reader, bytes, sizeof bytes) == 0U, "nothing has come yet");
        expectations.expect(::write(*writer, "abc", 3) == 3, "writing");
        expectations.expect(systemcalls::readStream(*reader, bytes, 2) == 2U && bytes[1] == 'b', "no more than asked");
        expectations.expect(systemcalls::readStream(*reader, bytes, sizeof bytes) == 1U && bytes[0] == 'c', "the rest");
        systemcalls::closeStream(*writer);
        expectations.expect(!systemcalls::readStream(*reader, bytes, sizeof bytes), "the end");
        systemcalls::closeStream(*reader);
    }
    fs::remove_all(folder);
    expectations.expect(systemcalls::standardInput() == 0, "standard input");
}

#endif

} // namespace

int main()
{
    Expectations expectations;
    text(expectations);
    files(expectations);
    pipes(expectations);
    return expectations.status();
}
