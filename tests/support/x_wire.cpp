// SPDX-License-Identifier: MIT
#include "support/x_wire.hpp"

#include <dlfcn.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/uio.h>
#include <sys/un.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

namespace {

constexpr int any = -1;
constexpr int nothing = -2;

struct {
    int descriptor = nothing;
    int requests = 0;
    int round_trips = 0;
    bool has_written = false;
    std::size_t rest_of_request = 0;
    std::function<void(int)> action;
} watched;

template <typename Function>
Function next(const char* name) {
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

bool leads_to_an_x_server(int descriptor) {
    sockaddr_un peer{};
    socklen_t size = sizeof peer;
    if (getpeername(descriptor, reinterpret_cast<sockaddr*>(&peer), &size) != 0) return false;
    // A name in the abstract namespace begins with a null character.
    const std::string_view path(peer.sun_path, size - offsetof(sockaddr_un, sun_path));
    return peer.sun_family == AF_UNIX && path.find("/.X11-unix/X") != path.npos;
}

bool is_watched(int descriptor) {
    if (watched.descriptor == any) return leads_to_an_x_server(descriptor);
    return descriptor == watched.descriptor;
}

// A request tells its length in units of four bytes; a long one after its first unit. What a connection
// begins with is told by the letter of its byte order, which is the code of a request of one unit, and the
// protocol's version.
std::size_t length_of(std::string_view request) {
    std::uint16_t units = 0;
    std::uint32_t long_units = 0;
    if (request.size() < 4) return request.size();
    std::memcpy(&units, request.data() + 2, sizeof units);
    if (request[0] == 'l' && units == 11) return request.size();
    if (units == 0 && request.size() >= 8) std::memcpy(&long_units, request.data() + 4, sizeof long_units);
    return 4 * std::max<std::size_t>(1, units != 0 ? units : long_units);
}

// The bytes up to the end of the request that they begin with or go on with.
std::size_t first_part(std::string_view bytes) {
    const std::size_t length = watched.rest_of_request ? watched.rest_of_request : length_of(bytes);
    return std::min(length, bytes.size());
}

void note_written(std::string_view bytes) {
    watched.has_written |= !bytes.empty();
    while (!bytes.empty()) {
        if (watched.rest_of_request == 0) {
            ++watched.requests;
            watched.rest_of_request = length_of(bytes);
        }
        const std::size_t part = first_part(bytes);
        watched.rest_of_request -= part;
        bytes.remove_prefix(part);
    }
}

ssize_t send_one_by_one(int descriptor, std::string_view bytes) {
    ssize_t sent = 0;
    while (!bytes.empty()) {
        const ssize_t result = send(descriptor, bytes.data(), first_part(bytes), MSG_NOSIGNAL);
        if (result <= 0) return sent > 0 ? sent : result;
        note_written(bytes.substr(0, static_cast<std::size_t>(result)));
        bytes.remove_prefix(static_cast<std::size_t>(result));
        sent += result;
        if (watched.rest_of_request == 0) watched.action(watched.requests);
    }
    return sent;
}

bool has_nothing_yet(int descriptor) {
    if (!watched.has_written || !is_watched(descriptor)) return false;
    errno = EAGAIN;
    return true;
}

}  // namespace

// Other libraries find only what is visible.
#pragma GCC visibility push(default)

extern "C" ssize_t writev(int descriptor, const iovec* parts, int count) {
    static const auto real = next<ssize_t (*)(int, const iovec*, int)>("writev");
    if (!is_watched(descriptor)) return real(descriptor, parts, count);
    std::string bytes;
    for (int i = 0; i < count; ++i)
        bytes.append(static_cast<const char*>(parts[i].iov_base), parts[i].iov_len);
    if (watched.action) return send_one_by_one(descriptor, bytes);
    const ssize_t result = real(descriptor, parts, count);
    if (result > 0) note_written(std::string_view(bytes).substr(0, static_cast<std::size_t>(result)));
    return result;
}

extern "C" int poll(pollfd* descriptors, nfds_t count, int timeout) {
    static const auto real = next<int (*)(pollfd*, nfds_t, int)>("poll");
    if (!watched.has_written || count == 0 || timeout == 0 || !is_watched(descriptors->fd))
        return real(descriptors, count, timeout);
    if (count == 1 && (descriptors->events & POLLOUT)) {
        pollfd writing{descriptors->fd, POLLOUT, 0};
        const int result = real(&writing, count, timeout);
        descriptors->revents = writing.revents;
        return result;
    }
    ++watched.round_trips;
    watched.has_written = false;
    return real(descriptors, count, timeout);
}

extern "C" ssize_t recvmsg(int descriptor, msghdr* message, int flags) {
    static const auto real = next<ssize_t (*)(int, msghdr*, int)>("recvmsg");
    return has_nothing_yet(descriptor) ? -1 : real(descriptor, message, flags);
}

extern "C" ssize_t recv(int descriptor, void* buffer, std::size_t size, int flags) {
    static const auto real = next<ssize_t (*)(int, void*, std::size_t, int)>("recv");
    return has_nothing_yet(descriptor) ? -1 : real(descriptor, buffer, size, flags);
}

#pragma GCC visibility pop

test::x_wire::x_wire(int descriptor) {
    watched = {};
    watched.descriptor = descriptor;
}

test::x_wire::x_wire() : x_wire(any) {}

test::x_wire::~x_wire() { watched = {}; }

int test::x_wire::requests() const { return watched.requests; }

int test::x_wire::round_trips() const { return watched.round_trips; }

void test::x_wire::after_each_request(std::function<void(int)> action) {
    watched.requests = 0;
    watched.action = std::move(action);
}
