#include "core/materials/textosql.h"

namespace kelvora {

namespace {

// The character that closes a quoted text or name opened by c, or 0.
char Cierre(char c) {
    switch (c) {
        case '\'':
        case '"':
        case '`':
            return c;
        case '[':
            return ']';
        default:
            return 0;
    }
}

bool AbreComentario(std::string_view sql, size_t i) {
    if (i + 1 >= sql.size()) {
        return false;
    }
    return (sql[i] == '-' && sql[i + 1] == '-') || (sql[i] == '/' && sql[i + 1] == '*');
}

}  // namespace

bool TieneComentario(std::string_view sql) {
    char cierre = 0;
    for (size_t i = 0; i < sql.size(); ++i) {
        if (cierre != 0) {
            cierre = sql[i] == cierre ? 0 : cierre;
        } else if (AbreComentario(sql, i)) {
            return true;
        } else {
            cierre = Cierre(sql[i]);
        }
    }
    return false;
}

}  // namespace kelvora
