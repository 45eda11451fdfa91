#pragma once

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/un.h>

#include <cstring>
#include <string>

#include "platform/posix/FileDescriptor.h"

namespace zy::test {

/// A socket that takes connections and never answers, as a bus does that hangs.
class SilentSocket {
  public:
    explicit SilentSocket(const std::string& path)
        : socket_(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        std::strncpy(address.sun_path, path.c_str(), sizeof address.sun_path - 1);
        EXPECT_EQ(::bind(socket_.Number(), reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
        constexpr int kWaiting = 16; // programs of a session that want to be connected
        EXPECT_EQ(::listen(socket_.Number(), kWaiting), 0);
    }

  private:
    FileDescriptor socket_;
};

} // namespace zy::test
