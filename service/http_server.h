// The HTTP/1.1 server around the routes: Boost.Beast over Boost.Asio, one
// process, a worker thread per core, each with its own I/O context and its own
// listening socket on the shared port; a connection stays on one worker.
#pragma once

#include "service/service.h"

namespace vela::service {

// Listens on config.address:config.port and serves until SIGTERM or SIGINT:
// then stops accepting, closes the connections waiting for a request,
// finishes every request in flight (each answer says Connection: close) and
// returns 0. SIGHUP forgets cached audio and prompt lists. Prints
// "vela serve: listening on ADDR:PORT" on standard error once it accepts.
// Returns 1 (after a message) when it cannot listen.
int serve(const Config& config);

}  // namespace vela::service
