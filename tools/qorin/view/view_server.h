#ifndef TOOLS_QORIN_VIEW_VIEW_SERVER_H
#define TOOLS_QORIN_VIEW_VIEW_SERVER_H

#include <cstdint>
#include <memory>
#include <string>

#include "tools/qorin/view/status_source.h"

namespace qorin_view
{
struct server_options
{
    std::string address = "127.0.0.1"; ///< to listen on
    std::uint16_t port = 7780;         ///< 0: one that is free
    double rate = 30;                  ///< status messages a second, at most
    std::string token = {};            ///< what a viewer must know; empty: nothing
};

/**
 * Serves the page, and to each viewer of it the status over a WebSocket.
 *
 * A thread of its own does all of it, from the making of the server to its destruction. What a viewer does not take in
 * time is not sent to it: it gets the state of then later, and no other one waits.
 */
class view_server
{
public:
    /// Listens when it returns. Throws std::system_error with one line when it cannot.
    view_server(const server_options& options, std::unique_ptr<status_source> source);
    ~view_server();
    view_server(const view_server&) = delete;
    view_server& operator=(const view_server&) = delete;

    [[nodiscard]] std::uint16_t port() const;

private:
    class running_server;
    std::unique_ptr<running_server> server_;
};
} // namespace qorin_view

#endif
