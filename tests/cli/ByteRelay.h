#pragma once

#include <QByteArray>
#include <QString>

#include <atomic>
#include <cerrno>
#include <fcntl.h>
#include <poll.h>
#include <termios.h>
#include <thread>
#include <unistd.h>

// A pseudo-terminal between tarvik-cli and tarvik-sim that passes every byte on, except that it
// may put one byte of noise into what the device sends: once, after `afterBytes` bytes of the
// reply to the host's command `command` sent with the data byte `data`.
class ByteRelay
{
public:
    struct Noise
    {
        bool enabled = false;
        quint8 command = 0;
        quint8 data = 0;
        int afterBytes = 0;
        char byte = char(0x5A);
    };

    ByteRelay(const QString &devicePath, Noise noise) : m_noise(noise)
    {
        m_master = ::posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK);
        if (m_master < 0 || ::grantpt(m_master) != 0 || ::unlockpt(m_master) != 0)
            return;
        m_path = QString::fromLocal8Bit(::ptsname(m_master));
        // The slave stays open here too, so that the master never sees a hang-up between runs.
        m_slaveKeeper = ::open(::ptsname(m_master), O_RDWR | O_NOCTTY);
        raw(m_slaveKeeper);
        m_device = ::open(devicePath.toLocal8Bit().constData(), O_RDWR | O_NOCTTY | O_NONBLOCK);
        raw(m_device);
        m_thread = std::thread([this] { run(); });
    }
    ~ByteRelay()
    {
        m_stop = true;
        if (m_thread.joinable())
            m_thread.join();
        for (int fd : {m_master, m_slaveKeeper, m_device})
            if (fd >= 0)
                ::close(fd);
    }
    ByteRelay(const ByteRelay &) = delete;
    ByteRelay &operator=(const ByteRelay &) = delete;

    // Where tarvik-cli connects.
    const QString &path() const { return m_path; }
    bool inserted() const { return m_inserted; }

private:
    static void raw(int fd)
    {
        termios t{};
        if (fd < 0 || ::tcgetattr(fd, &t) != 0)
            return;
        ::cfmakeraw(&t);
        ::tcsetattr(fd, TCSANOW, &t);
    }

    void run()
    {
        QByteArray lastHost; // the host's last two bytes
        int answered = 0;    // device bytes since the host's last byte
        char buffer[256];
        while (!m_stop) {
            pollfd fds[2] = {{m_master, POLLIN, 0}, {m_device, POLLIN, 0}};
            if (::poll(fds, 2, 20) <= 0)
                continue;
            if (fds[0].revents & POLLIN) {
                const ssize_t n = ::read(m_master, buffer, sizeof buffer);
                if (n > 0) {
                    writeAll(m_device, buffer, n);
                    lastHost = (lastHost + QByteArray(buffer, n)).right(2);
                    answered = 0;
                }
            }
            if (fds[1].revents & POLLIN) {
                const ssize_t n = ::read(m_device, buffer, sizeof buffer);
                for (ssize_t i = 0; i < n; ++i) {
                    writeAll(m_master, buffer + i, 1);
                    ++answered;
                    if (m_noise.enabled && !m_inserted && lastHost.size() == 2 &&
                        quint8(lastHost[0]) == m_noise.command &&
                        quint8(lastHost[1]) == m_noise.data && answered == m_noise.afterBytes) {
                        writeAll(m_master, &m_noise.byte, 1);
                        m_inserted = true;
                    }
                }
            }
        }
    }
    static void writeAll(int fd, const char *bytes, ssize_t n)
    {
        while (n > 0) {
            const ssize_t w = ::write(fd, bytes, size_t(n));
            if (w > 0) {
                bytes += w;
                n -= w;
            } else if (w < 0 && errno != EAGAIN) {
                return;
            } else {
                pollfd out{fd, POLLOUT, 0};
                ::poll(&out, 1, 50);
            }
        }
    }

    Noise m_noise;
    int m_master = -1;
    int m_slaveKeeper = -1;
    int m_device = -1;
    QString m_path;
    std::atomic<bool> m_stop{false};
    std::atomic<bool> m_inserted{false};
    std::thread m_thread;
};
