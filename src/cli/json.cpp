#include "cli/json.h"

namespace kelvora::cli {

std::string TextoJson(const Json& valor) {
    return valor.dump(-1, ' ', false, Json::error_handler_t::replace);
}

}  // namespace kelvora::cli
