#include "benches/DelayRelay.h"

#include <arpa/inet.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <deque>
#include <list>
#include <regex>
#include <string>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

sockaddr_in local(int port)
{
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = htons(uint16_t(port));
    return address;
}

int listening(int &port)
{
    const int socket = ::socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address = local(0);
    socklen_t size = sizeof address;
    if (::bind(socket, reinterpret_cast<sockaddr *>(&address), size) != 0 || ::listen(socket, 16) != 0
        || ::getsockname(socket, reinterpret_cast<sockaddr *>(&address), &size) != 0)
        std::exit(1);
    port = ntohs(address.sin_port);
    return socket;
}

void sendAtOnce(int socket)
{
    const int on = 1;
    ::setsockopt(socket, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
}

struct Piece {
    Clock::time_point due;
    std::string bytes; ///< empty for the end of the stream
};

/// One direction of a connection.
struct Way {
    int from;
    int to;
    bool rewritten; ///< replies of the control connection
    std::deque<Piece> held;
    bool ended = false;
};

} // namespace

class DelayRelay::Loop {
public:
    Loop(int server, int roundTrip) : m_delay(std::chrono::microseconds(500 * roundTrip))
    {
        int port = 0;
        m_doors.push_back({listening(port), server, true});
        m_port = port;
    }
    ~Loop()
    {
        for (const Door &door : m_doors)
            ::close(door.socket);
        for (const Way &way : m_ways)
            ::close(way.from);
    }
    int port() const { return m_port; }

    void turn()
    {
        std::vector<pollfd> waiting;
        for (const Door &door : m_doors)
            waiting.push_back({door.socket, POLLIN, 0});
        for (const Way &way : m_ways)
            if (!way.ended)
                waiting.push_back({way.from, POLLIN, 0});
        ::poll(waiting.data(), nfds_t(waiting.size()), 1);
        for (const pollfd &ready : waiting)
            if (ready.revents != 0)
                take(ready.fd);
        const Clock::time_point now = Clock::now();
        for (Way &way : m_ways)
            release(way, now);
    }

private:
    struct Door {
        int socket;
        int target;
        bool control;
    };

    void take(int socket)
    {
        for (auto door = m_doors.begin(); door != m_doors.end(); ++door)
            if (door->socket == socket) {
                open(*door);
                if (!door->control) { // a passive port serves once
                    ::close(door->socket);
                    m_doors.erase(door);
                }
                return;
            }
        for (Way &way : m_ways)
            if (way.from == socket && !way.ended)
                read(way);
    }

    void open(const Door &door)
    {
        const int client = ::accept(door.socket, nullptr, nullptr);
        const int server = ::socket(AF_INET, SOCK_STREAM, 0);
        const sockaddr_in address = local(door.target);
        if (client < 0 || ::connect(server, reinterpret_cast<const sockaddr *>(&address), sizeof address) != 0)
            std::exit(1);
        sendAtOnce(client);
        sendAtOnce(server);
        m_ways.push_back({client, server, false, {}});
        m_ways.push_back({server, client, door.control, {}});
    }

    void read(Way &way)
    {
        char bytes[65536];
        const ssize_t got = ::recv(way.from, bytes, sizeof bytes, 0);
        way.ended = got <= 0;
        std::string text(bytes, got > 0 ? size_t(got) : 0);
        way.held.push_back({Clock::now() + m_delay, way.rewritten ? rewrite(std::move(text)) : std::move(text)});
    }

    /// Puts a port of the relay into the replies 227 and 229 (RFC 959, RFC 2428).
    std::string rewrite(std::string text)
    {
        static const std::regex passive("227 .*\\((\\d+,\\d+,\\d+,\\d+),(\\d+),(\\d+)\\)");
        static const std::regex extended("229 .*\\(\\|\\|\\|(\\d+)\\|\\)");
        std::smatch found;
        int port = 0;
        if (std::regex_search(text, found, passive)) {
            m_doors.push_back({listening(port), std::stoi(found[2]) * 256 + std::stoi(found[3]), false});
            const std::string there = std::to_string(port / 256) + ',' + std::to_string(port % 256);
            const auto start = size_t(found.position(2));
            return text.replace(start, size_t(found.position(3) + found.length(3)) - start, there);
        }
        if (std::regex_search(text, found, extended)) {
            m_doors.push_back({listening(port), std::stoi(found[1]), false});
            return text.replace(size_t(found.position(1)), size_t(found.length(1)), std::to_string(port));
        }
        return text;
    }

    static void release(Way &way, Clock::time_point now)
    {
        while (!way.held.empty() && way.held.front().due <= now) {
            const std::string &bytes = way.held.front().bytes;
            if (bytes.empty())
                ::shutdown(way.to, SHUT_WR);
            for (size_t sent = 0; sent < bytes.size();) {
                const ssize_t put = ::send(way.to, bytes.data() + sent, bytes.size() - sent, MSG_NOSIGNAL);
                if (put <= 0)
                    break;
                sent += size_t(put);
            }
            way.held.pop_front();
        }
    }

    Clock::duration m_delay;
    int m_port = 0;
    std::list<Door> m_doors;
    std::list<Way> m_ways;
};

DelayRelay::DelayRelay(int serverPort, int roundTripMilliseconds)
    : m_loop(std::make_unique<Loop>(serverPort, roundTripMilliseconds)), m_thread([this] {
          while (!m_stopped)
              m_loop->turn();
      })
{
}

DelayRelay::~DelayRelay()
{
    m_stopped = true;
    m_thread.join();
}

int DelayRelay::port() const
{
    return m_loop->port();
}
