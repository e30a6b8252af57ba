#pragma once

#include "core/runtime/fecha.h"

namespace kelvora {

/// Today's date, for reports.
class Clock {
public:
    virtual ~Clock() = default;

    virtual Fecha Hoy() = 0;
};

}  // namespace kelvora
