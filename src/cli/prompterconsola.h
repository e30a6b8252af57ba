#pragma once

#include "core/platform/prompter.h"

#include <vector>

namespace kelvora::cli {

/// Answers every box with the button that goes on and prints its text on standard error;
/// keeps what was shown for listings.
class PrompterConsola : public Prompter {
public:
    explicit PrompterConsola(bool imprimir = true);

    Respuesta MsgBox(const Mensaje& mensaje) override;
    std::optional<std::string> InputBox(const Entrada& entrada) override;

    const std::vector<Mensaje>& Mostrados() const { return mMostrados; }

private:
    bool mImprimir;
    std::vector<Mensaje> mMostrados;
};

}  // namespace kelvora::cli
