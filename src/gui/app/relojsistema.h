#pragma once

#include "core/platform/clock.h"

namespace kelvora {

/// Today's date from the system clock.
class RelojSistema : public Clock {
public:
    Fecha Hoy() override;
};

}  // namespace kelvora
