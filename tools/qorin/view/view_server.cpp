#include "tools/qorin/view/view_server.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <deque>
#include <list>
#include <optional>
#include <system_error>
#include <thread>
#include <utility>

#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/steady_timer.hpp>
#include <boost/beast/core.hpp>
#include <boost/beast/http.hpp>
#include <boost/beast/websocket.hpp>
#include <boost/system/system_error.hpp>
#include <fmt/format.h>

#include "tools/qorin/view/message.h"
#include "tools/qorin/view/page_file.h"

namespace qorin_view
{
namespace
{
namespace asio = boost::asio;
namespace beast = boost::beast;
namespace http = beast::http;
namespace websocket = beast::websocket;
using asio::ip::tcp;
using boost::system::error_code;
using namespace std::chrono_literals;

constexpr std::size_t connection_limit = 64;
constexpr std::size_t text_limit = 8192;   ///< that wait for a viewer
constexpr std::size_t history_limit = 200; ///< events that a new viewer is told of
constexpr double on_the_way_limit = 30;    ///< messages with status that a viewer has not seen yet
constexpr int send_buffer = 64 * 1024;     ///< so small that a viewer who falls behind is soon noticed
constexpr double past_time = 60;           ///< seconds of a recording that a viewer may see ahead of a place in it
constexpr double past_step = 0.2;          ///< seconds from one status of them to the next
constexpr auto request_time = 10s;
constexpr std::string_view live_path = "/live";

using text = std::shared_ptr<const std::string>;

/// Equal in a time that does not tell where they differ.
bool is_same_secret(std::string_view one, std::string_view other)
{
    unsigned int difference = one.size() == other.size() ? 0 : 1;
    for (std::size_t i = 0; i < std::min(one.size(), other.size()); ++i)
        difference |= static_cast<unsigned char>(one[i] ^ other[i]);
    return difference == 0;
}

std::string_view path_of(std::string_view target)
{
    return target.substr(0, target.find('?'));
}

std::string_view token_of(std::string_view target)
{
    constexpr std::string_view key = "token=";
    const std::size_t query = target.find('?');
    const std::size_t begin = query == std::string_view::npos ? query : target.find(key, query);
    if (begin == std::string_view::npos)
        return {};
    const std::string_view rest = target.substr(begin + key.size());
    return rest.substr(0, rest.find('&'));
}

/// Whether a host is named by number or is this machine: a name that anybody may give to any number is no sign that the
/// page which asks is ours.
bool is_plain_host(std::string_view host)
{
    const std::string name(host.substr(0, host.rfind(':')));
    error_code failed;
    static_cast<void>(asio::ip::make_address_v4(name, failed));
    return name == "localhost" || !failed;
}

class viewer;

/// A text of its kind alone.
text mark(std::string_view kind)
{
    return std::make_shared<const std::string>(fmt::format(R"({{"kind":"{}"}})", kind));
}

/// What viewers and their requests have in common. All on the thread that serves.
struct hall
{
    hall(const server_options& the_options, std::unique_ptr<status_source> the_source)
        : options(the_options), source(std::move(the_source)), now(word_count(source->fields()))
    {
    }

    server_options options;
    std::unique_ptr<status_source> source;
    /// Reads the state. `time` counts in a recording.
    void read(double asked)
    {
        const status_source::reading told = source->read(asked);
        write_words(source->fields(), told.values, now);
        time = told.time;
    }

    [[nodiscard]] bool is_recording() const { return source->duration() > 0; }

    words now; ///< as read last
    double time = 0;
    std::list<std::weak_ptr<viewer>> viewers{};
    std::deque<text> history{};
    std::size_t connections = 0;
};

/// Counts a connection for as long as it lives.
class place
{
public:
    explicit place(hall& in) : hall_(in) { ++hall_.connections; }
    ~place() { --hall_.connections; }
    place(const place&) = delete;
    place& operator=(const place&) = delete;

private:
    hall& hall_;
};

/// Somebody who looks: an open WebSocket.
class viewer : public std::enable_shared_from_this<viewer>
{
public:
    viewer(beast::tcp_stream&& stream, hall& in, std::shared_ptr<place> held)
        : socket_(std::move(stream)), hall_(in), place_(std::move(held)), then_(in.now.size())
    {
    }

    void start(const http::request<http::empty_body>& request)
    {
        beast::get_lowest_layer(socket_).expires_never();
        socket_.set_option(websocket::stream_base::timeout{10s, 20s, true});
        socket_.read_message_max(256);
        socket_.auto_fragment(false);
        socket_.async_accept(request,
                             [self = shared_from_this()](error_code failed)
                             {
                                 if (!failed)
                                     self->enter();
                             });
    }

    /// The status is due. While a message is under way it is not: the next one tells of this change too.
    void show()
    {
        if (has_enough())
            return;
        is_due_ = true;
        write();
    }

    void tell(const text& what)
    {
        queue(what);
        write();
    }

    void advance(double seconds)
    {
        if (is_playing_)
            position_ = std::clamp(position_ + seconds * pace_, 0.0, hall_.source->duration());
        if (position_ >= hall_.source->duration())
            is_playing_ = false;
    }

    void close()
    {
        error_code ignored;
        beast::get_lowest_layer(socket_).socket().close(ignored);
    }

private:
    void enter()
    {
        hall_.viewers.push_back(weak_from_this());
        is_open_ = true;
        texts_.push_back(std::make_shared<const std::string>(hello_text(*hall_.source, hall_.options.rate)));
        texts_.insert(texts_.end(), hall_.history.begin(), hall_.history.end());
        show();
        read();
    }

    void read()
    {
        socket_.async_read(in_,
                           [self = shared_from_this()](error_code failed, std::size_t)
                           {
                               if (failed)
                                   return self->close();
                               self->obey(beast::buffers_to_string(self->in_.data()));
                               self->in_.clear();
                               self->read();
                           });
    }

    /// What a viewer may ask for: a word, and a number behind some.
    void obey(const std::string& line)
    {
        const std::size_t space = std::min(line.find(' '), line.size());
        const std::string_view word = std::string_view(line).substr(0, space);
        double value = 0;
        std::from_chars(line.data() + std::min(space + 1, line.size()), line.data() + line.size(), value);
        if (!std::isfinite(value))
            return;
        if (word == "seen")
        {
            on_the_way_ = std::max(on_the_way_.value_or(0) - value, 0.0);
            write();
        }
        else if (word == "connect")
            hall_.source->connect_again();
        else if (word == "play")
            is_playing_ = true;
        else if (word == "pause")
            is_playing_ = false;
        else if (word == "pace")
            pace_ = std::clamp(value, 0.0, 100.0);
        else if (word == "seek")
        {
            end_past();
            position_ = std::clamp(value, 0.0, hall_.source->duration());
        }
        else if (word == "past" && hall_.is_recording())
        {
            past_ = std::max(position_ - past_time, 0.0);
            queue(mark("past"));
        }
    }

    [[nodiscard]] bool has_enough() const { return on_the_way_ && *on_the_way_ >= on_the_way_limit; }

    void end_past()
    {
        if (std::exchange(past_, std::nullopt))
            queue(mark("present"));
    }

    void queue(const text& what)
    {
        if (texts_.size() >= text_limit)
            texts_.pop_front(); // events have numbers: the viewer sees that one is missing
        texts_.push_back(what);
    }

    void write()
    {
        if (is_writing_ || !is_open_)
            return;
        if (!texts_.empty())
        {
            const text next = texts_.front();
            texts_.pop_front();
            socket_.text(true);
            send(asio::buffer(*next), next);
        }
        else if (!has_enough() && std::exchange(is_due_, false))
        {
            write_status();
            socket_.binary(true);
            send(asio::buffer(status_), {});
        }
    }

    void write_status()
    {
        if (hall_.is_recording())
        {
            hall_.read(past_.value_or(position_));
            if (past_)
            {
                is_due_ = true;
                *past_ += past_step;
                if (*past_ >= position_)
                    end_past();
            }
        }
        write_changes(hall_.time, hall_.now, then_, status_);
        if (on_the_way_)
            ++*on_the_way_;
    }

    void send(asio::const_buffer message, const text& kept)
    {
        is_writing_ = true;
        socket_.async_write(message,
                            [self = shared_from_this(), kept](error_code failed, std::size_t)
                            {
                                self->is_writing_ = false;
                                if (failed)
                                    return self->close();
                                self->write();
                            });
    }

    websocket::stream<beast::tcp_stream> socket_;
    hall& hall_;
    std::shared_ptr<place> place_;
    words then_; ///< as the viewer has it
    beast::flat_buffer in_;
    std::deque<text> texts_;
    std::string status_;
    std::optional<double> on_the_way_; ///< messages with status, to a viewer who tells which ones it has seen
    bool is_open_ = false;
    bool is_due_ = false;
    bool is_writing_ = false;
    double position_ = 0;        ///< in a recording
    std::optional<double> past_; ///< what is shown of it ahead of that
    double pace_ = 1;
    bool is_playing_ = true;
};

/// A connection that asks for files of the page, until it becomes a viewer.
class request_session : public std::enable_shared_from_this<request_session>
{
public:
    request_session(tcp::socket&& socket, hall& in)
        : stream_(std::move(socket)), hall_(in), place_(std::make_shared<place>(in))
    {
    }

    void read()
    {
        parser_.emplace();
        parser_->header_limit(8192);
        parser_->body_limit(0);
        stream_.expires_after(request_time);
        http::async_read(stream_, buffer_, *parser_,
                         [self = shared_from_this()](error_code failed, std::size_t)
                         {
                             if (!failed)
                                 self->serve();
                         });
    }

private:
    using response = http::response<http::span_body<const char>>;

    void serve()
    {
        const auto& request = parser_->get();
        if (!is_plain_host(request[http::field::host]) && hall_.options.token.empty())
            return answer(http::status::misdirected_request, "Ask for this page by the number of its address.\n");
        if (websocket::is_upgrade(request))
            return admit();
        if (request.method() != http::verb::get && request.method() != http::verb::head)
            return answer(http::status::method_not_allowed, "There is nothing but to look.\n");
        const auto path = path_of(request.target());
        if (path == live_path) // by which the page finds out why it is not let in
            return knows_token() ? answer(http::status::upgrade_required, "This is a WebSocket.\n") : refuse_token();
        const auto found = std::ranges::find(page_files(), path == "/" ? "/index.html" : path, &page_file::path);
        if (found == page_files().end())
            return answer(http::status::not_found, "There is no such file.\n");
        send(http::status::ok, *found);
    }

    void admit()
    {
        const auto& request = parser_->get();
        const std::string own = "http://" + std::string(request[http::field::host]);
        const auto origin = request.find(http::field::origin);
        if (origin != request.end() && origin->value() != own)
            return answer(http::status::forbidden, "This page is none of another site.\n");
        if (path_of(request.target()) != live_path)
            return answer(http::status::not_found, "There is no such WebSocket.\n");
        if (!knows_token())
            return refuse_token();
        http::request<http::empty_body> upgrade = parser_->release();
        std::make_shared<viewer>(std::move(stream_), hall_, place_)->start(upgrade);
    }

    [[nodiscard]] bool knows_token() const
    {
        return is_same_secret(token_of(parser_->get().target()), hall_.options.token);
    }

    void refuse_token() { answer(http::status::forbidden, "The token is missing or wrong.\n"); }

    void answer(http::status status, std::string_view line)
    {
        send(status, {"", "text/plain; charset=utf-8", line, false});
    }

    void send(http::status status, const page_file& file)
    {
        const auto& request = parser_->get();
        response_ = response(status, request.version());
        response_.keep_alive(request.keep_alive());
        response_.set(http::field::content_type, file.type);
        if (file.is_compressed)
            response_.set(http::field::content_encoding, "gzip");
        response_.set(http::field::cache_control, "no-cache");
        response_.set("Content-Security-Policy", "default-src 'self'; img-src 'self' data:; frame-ancestors 'none'");
        response_.set("Referrer-Policy", "no-referrer");
        response_.set("X-Content-Type-Options", "nosniff");
        response_.body() = {file.content.data(), file.content.size()};
        response_.prepare_payload();
        if (request.method() == http::verb::head)
            response_.body() = {};
        stream_.expires_after(request_time);
        http::async_write(stream_, response_,
                          [self = shared_from_this()](error_code failed, std::size_t)
                          {
                              if (!failed && self->response_.keep_alive())
                                  self->read();
                          });
    }

    beast::tcp_stream stream_;
    hall& hall_;
    std::shared_ptr<place> place_;
    beast::flat_buffer buffer_;
    std::optional<http::request_parser<http::empty_body>> parser_;
    response response_;
};
} // namespace

class view_server::running_server
{
public:
    running_server(const server_options& options, std::unique_ptr<status_source> source)
        : hall_(options, std::move(source)), period_(std::chrono::duration<double>(1 / options.rate))
    {
        const tcp::endpoint endpoint(asio::ip::make_address_v4(options.address), options.port);
        acceptor_.open(endpoint.protocol());
        acceptor_.set_option(tcp::acceptor::reuse_address(true));
        acceptor_.bind(endpoint);
        acceptor_.listen();
        port_ = acceptor_.local_endpoint().port();

        accept();
        tick();
        look();
        thread_ = std::thread([this] { io_.run(); });
    }

    ~running_server()
    {
        io_.stop();
        thread_.join();
    }

    [[nodiscard]] std::uint16_t port() const { return port_; }

private:
    using clock = std::chrono::steady_clock;

    void accept()
    {
        acceptor_.async_accept(
            [this](error_code failed, tcp::socket socket)
            {
                if (!failed && hall_.connections < connection_limit)
                {
                    error_code ignored;
                    socket.set_option(tcp::no_delay(true), ignored);
                    socket.set_option(tcp::socket::send_buffer_size(send_buffer), ignored);
                    std::make_shared<request_session>(std::move(socket), hall_)->read();
                    return accept();
                }
                if (!failed)
                    return accept(); // one too many: its connection is closed
                // Descriptors may be short; that passes.
                wait(pause_, 100ms, [this] { accept(); });
            });
    }

    template <class Done>
    static void wait(asio::steady_timer& timer, std::chrono::nanoseconds time, Done done)
    {
        timer.expires_after(time);
        timer.async_wait(
            [done](error_code failed)
            {
                if (!failed)
                    done();
            });
    }

    /// The viewers that are still there.
    std::vector<std::shared_ptr<viewer>> present()
    {
        std::vector<std::shared_ptr<viewer>> found;
        std::erase_if(hall_.viewers,
                      [&](const std::weak_ptr<viewer>& weak)
                      {
                          if (auto here = weak.lock())
                              found.push_back(std::move(here));
                          return weak.expired();
                      });
        return found;
    }

    void tick()
    {
        const auto period = std::chrono::duration_cast<clock::duration>(period_);
        // A late machine does not make up for what it has missed.
        next_tick_ = std::max(next_tick_ + period, clock::now());
        tick_.expires_at(next_tick_);
        tick_.async_wait(
            [this](error_code failed)
            {
                if (failed)
                    return;
                show();
                tick();
            });
    }

    void show()
    {
        const auto viewers = present();
        if (viewers.empty())
            return;
        if (!hall_.is_recording())
            hall_.read(0);
        for (const auto& one : viewers)
        {
            one->advance(period_.count());
            one->show();
        }
    }

    void look()
    {
        hall_.source->look();
        pass_on();
        wait(look_, 10ms, [this] { look(); });
    }

    void pass_on()
    {
        const std::vector<event_record> events = hall_.source->take_events();
        const std::string notice = hall_.source->take_notice();
        if (events.empty() && notice.empty())
            return;
        const auto viewers = present();
        for (const event_record& event : events)
        {
            hall_.history.push_back(std::make_shared<const std::string>(event_text(event)));
            if (hall_.history.size() > history_limit && !hall_.is_recording())
                hall_.history.pop_front();
            for (const auto& one : viewers)
                one->tell(hall_.history.back());
        }
        if (!notice.empty())
            for (const auto& one : viewers)
                one->tell(std::make_shared<const std::string>(notice_text(notice)));
    }

    hall hall_;
    asio::io_context io_{1};
    tcp::acceptor acceptor_{io_};
    asio::steady_timer tick_{io_};
    asio::steady_timer look_{io_};
    asio::steady_timer pause_{io_};
    clock::time_point next_tick_{};
    std::chrono::duration<double> period_;
    std::uint16_t port_ = 0;
    std::thread thread_;
};

view_server::view_server(const server_options& options, std::unique_ptr<status_source> source)
try : server_(std::make_unique<running_server>(options, std::move(source)))
{
}
catch (const boost::system::system_error& error) // no std::system_error before Boost 1.79
{
    throw std::system_error(error.code());
}

view_server::~view_server() = default;

std::uint16_t view_server::port() const
{
    return server_->port();
}
} // namespace qorin_view
