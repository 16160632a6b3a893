// Boost.JSON, compiled here once (header-only use: Debian ships no library of it).
#include <boost/json/src.hpp>
