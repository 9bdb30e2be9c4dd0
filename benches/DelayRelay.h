#pragma once
#include <atomic>
#include <memory>
#include <thread>

/// Stands between an FTP client and its server on 127.0.0.1 and holds every byte back for half a round trip each way.
/// The server's passive replies get ports of the relay, so that data connections go the same way.
class DelayRelay {
public:
    DelayRelay(int serverPort, int roundTripMilliseconds);
    ~DelayRelay();
    DelayRelay(const DelayRelay &) = delete;
    DelayRelay &operator=(const DelayRelay &) = delete;

    int port() const;

private:
    class Loop;
    std::unique_ptr<Loop> m_loop;
    std::atomic<bool> m_stopped = false;
    std::thread m_thread;
};
