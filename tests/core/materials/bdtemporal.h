#pragma once

#include <filesystem>
#include <string>

namespace kelvora::prueba {

/// A folder of its own holding BD/Kelvora.mdb created from the seed; removed at the end.
class BDTemporal {
public:
    BDTemporal();
    ~BDTemporal();
    BDTemporal(const BDTemporal&) = delete;
    BDTemporal& operator=(const BDTemporal&) = delete;

    /// Runs one write statement on a connection of its own.
    void Ejecutar(const std::string& sql) const;
    /// The number of rows of a query.
    int Contar(const std::string& sql) const;

    std::filesystem::path carpeta;
    std::string archivo;
    std::string cadena;
};

}  // namespace kelvora::prueba
