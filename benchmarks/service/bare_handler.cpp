// The least that a server of the same HTTP library can do: reads a request, sends the same bytes as
// a select by ID. Says its port; serves until it is killed.

#include <boost/asio/as_tuple.hpp>
#include <boost/asio/co_spawn.hpp>
#include <boost/asio/detached.hpp>
#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/use_awaitable.hpp>
#include <boost/asio/write.hpp>
#include <boost/beast/core/flat_buffer.hpp>
#include <boost/beast/http/read.hpp>
#include <boost/beast/http/string_body.hpp>

#include <cstdio>

namespace asio = boost::asio;
namespace http = boost::beast::http;
using asio::ip::tcp;

namespace
{

constexpr auto token = asio::as_tuple(asio::use_awaitable);

asio::awaitable<void> converse(tcp::socket socket, std::string reply)
{
    boost::beast::flat_buffer buffer;
    for (;;) {
        http::request<http::string_body> request;
        auto [error, count] = co_await http::async_read(socket, buffer, request, token);
        if (error)
            co_return;
        auto [fault, written] = co_await asio::async_write(socket, asio::buffer(reply), token);
        if (fault)
            co_return;
    }
}

asio::awaitable<void> accept(tcp::acceptor &acceptor, std::string reply)
{
    for (;;) {
        auto [error, socket] = co_await acceptor.async_accept(token);
        if (error)
            co_return;
        socket.set_option(tcp::no_delay(true));
        asio::co_spawn(acceptor.get_executor(), converse(std::move(socket), reply), asio::detached);
    }
}

} // namespace

int main(int, char **argv)
{
    asio::io_context context(1);
    tcp::acceptor acceptor(context, {asio::ip::address_v4::loopback(), 0});
    std::printf("%d\n", int(acceptor.local_endpoint().port()));
    std::fflush(stdout);
    asio::co_spawn(context, accept(acceptor, argv[1]), asio::detached);
    context.run();
}
