// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "systemcalls_p.h"

#include <cstdio>

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#include <windows.h>
#else
#include <cerrno>
#include <fcntl.h>
#include <iconv.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace systemcalls {

#ifdef _WIN32

namespace {

constexpr UINT gb18030 = 54936;

// The text between two of the system's encodings; nothing if there is a part that is in neither.
std::optional<std::wstring> wide(std::string_view bytes)
{
    const int size = static_cast<int>(bytes.size());
    const int length = MultiByteToWideChar(gb18030, MB_ERR_INVALID_CHARS, bytes.data(), size, nullptr, 0);
    if (length <= 0) {
        return std::nullopt;
    }
    std::wstring text(static_cast<std::size_t>(length), L'\0');
    MultiByteToWideChar(gb18030, MB_ERR_INVALID_CHARS, bytes.data(), size, text.data(), length);
    return text;
}

std::string utf8(const std::wstring &text)
{
    const int size = static_cast<int>(text.size());
    const int length = WideCharToMultiByte(CP_UTF8, 0, text.data(), size, nullptr, 0, nullptr, nullptr);
    std::string bytes(static_cast<std::size_t>(length), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), size, bytes.data(), length, nullptr, nullptr);
    return bytes;
}

} // namespace

bool isNamedPipe(const std::filesystem::path &path)
{
    std::wstring name = path.native().substr(0, 9);
    for (wchar_t &c : name) {
        c = c == L'/' ? L'\\' : c >= L'A' && c <= L'Z' ? static_cast<wchar_t>(c - L'A' + L'a') : c;
    }
    return name == L"\\\\.\\pipe\\";
}

std::optional<int> openNamedPipe(const std::filesystem::path &path)
{
    // Fails when no program has made the pipe, or none waits at its other end.
    const HANDLE handle = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    if (handle == INVALID_HANDLE_VALUE) {
        return std::nullopt;
    }
    const int descriptor = _open_osfhandle(reinterpret_cast<intptr_t>(handle), _O_WRONLY | _O_BINARY);
    if (descriptor < 0) {
        CloseHandle(handle);
        return std::nullopt;
    }
    return descriptor;
}

void useBinaryStreams()
{
    _setmode(_fileno(stdin), _O_BINARY);
    _setmode(_fileno(stdout), _O_BINARY);
}

std::optional<int> standardInput()
{
    return std::nullopt;
}

std::optional<int> openStream(const std::filesystem::path &)
{
    return std::nullopt;
}

void closeStream(int descriptor)
{
    _close(descriptor);
}

std::optional<std::size_t> readStream(int, char *, std::size_t)
{
    return std::nullopt;
}

ConvertedText fromGb18030(std::string_view bytes)
{
    if (IsValidCodePage(gb18030) == FALSE) {
        return {false, std::nullopt};
    }
    if (bytes.empty()) {
        return {true, std::string()};
    }
    const std::optional<std::wstring> text = wide(bytes);
    return {true, text ? std::make_optional(utf8(*text)) : std::nullopt};
}

#else

bool isNamedPipe(const std::filesystem::path &path)
{
    struct stat status { };
    const std::string &name = path.native();
    const bool isStream = name.rfind("/dev/", 0) == 0 || name.rfind("/proc/", 0) == 0;
    return !isStream && ::stat(name.c_str(), &status) == 0 && S_ISFIFO(status.st_mode);
}

std::optional<int> openNamedPipe(const std::filesystem::path &path)
{
    // Without waiting, this fails when nobody reads.
    const int descriptor = ::open(path.c_str(), O_WRONLY | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0) {
        return std::nullopt;
    }
    // What is written then has to wait for the reader.
    const int flags = ::fcntl(descriptor, F_GETFL);
    if (flags < 0 || ::fcntl(descriptor, F_SETFL, flags & ~O_NONBLOCK) < 0) {
        ::close(descriptor);
        return std::nullopt;
    }
    return descriptor;
}

void useBinaryStreams() { }

std::optional<int> standardInput()
{
    return STDIN_FILENO;
}

std::optional<int> openStream(const std::filesystem::path &path)
{
    const int descriptor = ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
    return descriptor < 0 ? std::nullopt : std::make_optional(descriptor);
}

void closeStream(int descriptor)
{
    ::close(descriptor);
}

std::optional<std::size_t> readStream(int descriptor, char *bytes, std::size_t most)
{
    // Standard input is shared with other programs, for which it must go on to wait; so it is asked before.
    pollfd asked{descriptor, POLLIN, 0};
    if (::poll(&asked, 1, 0) <= 0) {
        return 0;
    }
    const ssize_t length = ::read(descriptor, bytes, most);
    if (length > 0) {
        return std::size_t(length);
    }
    const bool isNothingYet = length < 0 && (errno == EAGAIN || errno == EINTR);
    return isNothingYet ? std::make_optional(std::size_t(0)) : std::nullopt;
}

ConvertedText fromGb18030(std::string_view bytes)
{
    const iconv_t converter = iconv_open("UTF-8", "GB18030");
    if (converter == iconv_t(-1)) {
        return {false, std::nullopt};
    }
    std::string source(bytes);
    std::string utf8(bytes.size() * 2 + 16, '\0'); // two bytes become three at most, four stay four
    char *in = source.data();
    char *out = utf8.data();
    std::size_t inLeft = source.size();
    std::size_t outLeft = utf8.size();
    const std::size_t result = iconv(converter, &in, &inLeft, &out, &outLeft);
    iconv_close(converter);
    if (result == std::size_t(-1) || inLeft > 0) {
        return {true, std::nullopt};
    }
    utf8.resize(utf8.size() - outLeft);
    return {true, utf8};
}

#endif

} // namespace systemcalls
