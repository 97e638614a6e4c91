#include "Peers.h"

#include <arpa/inet.h>
#include <fcntl.h>
#include <netinet/tcp.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/wait.h>

#include <array>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <ctime>

void expect(bool isTrue, const char *what)
{
    if (!isTrue) {
        std::fprintf(stderr, "failed: %s\n", what);
        std::exit(2);
    }
}

ServerProcess::ServerProcess(const std::vector<std::string> &command)
{
    std::array<int, 2> pipe{};
    expect(pipe2(pipe.data(), O_CLOEXEC) == 0, "pipe");
    std::vector<char *> arguments;
    for (const std::string &word : command)
        arguments.push_back(const_cast<char *>(word.c_str()));
    arguments.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, pipe[1], STDOUT_FILENO);
    posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    const int code =
        posix_spawnp(&m_pid, arguments[0], &actions, nullptr, arguments.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    close(pipe[1]);
    expect(code == 0, "start of a server");
    FILE *const said = fdopen(pipe[0], "r");
    std::array<char, 500> line{};
    expect(std::fgets(line.data(), line.size(), said), "a server's first line");
    const std::string text = line.data();
    m_port = std::atoi(text.c_str() + (text.rfind(':') == text.npos ? 0 : text.rfind(':') + 1));
    std::fclose(said);
}

ServerProcess::~ServerProcess()
{
    kill(m_pid, SIGTERM);
    waitpid(m_pid, nullptr, 0);
}

double ServerProcess::processorTime() const
{
    clockid_t clock{};
    timespec time{};
    expect(clock_getcpuclockid(m_pid, &clock) == 0 && clock_gettime(clock, &time) == 0, "clock");
    return double(time.tv_sec) + double(time.tv_nsec) * 1e-9;
}

HttpClient::HttpClient(int port) : m_socket(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0))
{
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(std::uint16_t(port));
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    const int on = 1;
    setsockopt(m_socket.get(), IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
    expect(connect(m_socket.get(), reinterpret_cast<sockaddr *>(&address), sizeof address) == 0,
           "connection");
}

void HttpClient::send(const std::string &request)
{
    expect(::send(m_socket.get(), request.data(), request.size(), MSG_NOSIGNAL)
               == ssize_t(request.size()),
           "request");
}

std::string HttpClient::receive()
{
    constexpr std::string_view lengthMark = "Content-Length: ";
    for (;;) {
        const std::size_t head = m_came.find("\r\n\r\n");
        if (head != m_came.npos) {
            const std::size_t mark = m_came.find(lengthMark);
            const std::size_t length =
                std::strtoul(m_came.c_str() + mark + lengthMark.size(), nullptr, 10);
            if (m_came.size() >= head + 4 + length) {
                std::string reply = m_came.substr(0, head + 4 + length);
                m_came.erase(0, reply.size());
                return reply;
            }
        }
        std::array<char, 65536> piece;
        const ssize_t count = recv(m_socket.get(), piece.data(), piece.size(), 0);
        expect(count > 0, "reply");
        m_came.append(piece.data(), std::size_t(count));
    }
}

std::string recordRequest(const std::string &query, const std::string &body)
{
    return "POST /records/" + query
        + " HTTP/1.1\r\nHost: 127.0.0.1\r\nAuthorization: Basic YmVuY2g6YmVuY2g=\r\n"
          "User-Agent: Toolvane\r\nContent-Length: "
        + std::to_string(body.size()) + "\r\n\r\n" + body;
}
