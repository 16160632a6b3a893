// `vela serve`: the HTTP service with a playground page.
#pragma once

namespace vela::tools {

// Runs the service with the options after "serve" (argv[0] is the first
// option); returns the exit status: 0 after SIGTERM, 1 when it cannot
// listen, 2 on a usage error.
int serveCommand(int argc, char** argv);

}  // namespace vela::tools
