// The playground page (service/playground.html), compiled into the binary.
#pragma once

#include <string_view>

namespace vela::service {

std::string_view playgroundPage();

}  // namespace vela::service
