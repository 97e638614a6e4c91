#pragma once

#include "FileDescriptor.h"

#include <string>
#include <vector>

/// A server that the benchmark starts and ends. It says its port in its first line, behind the last
/// colon if there is one.
class ServerProcess
{
public:
    explicit ServerProcess(const std::vector<std::string> &command);
    ~ServerProcess();
    ServerProcess(const ServerProcess &) = delete;
    ServerProcess &operator=(const ServerProcess &) = delete;

    double processorTime() const; ///< Seconds, of all its threads.
    int port() const { return m_port; }

private:
    int m_pid = -1;
    int m_port = 0;
};

/// A kept connection to a server on this machine. Ends the program if the server does.
class HttpClient
{
public:
    explicit HttpClient(int port);

    void send(const std::string &request);
    std::string receive(); ///< A whole reply that has a Content-Length, headers included.

private:
    FileDescriptor m_socket;
    std::string m_came;
};

/// A request as the application sends it, with the account of the benchmarks.
std::string recordRequest(const std::string &query, const std::string &body = {});

/// Ends the program if something that must work does not.
void expect(bool isTrue, const char *what);
