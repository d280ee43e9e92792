#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orvemo::nomina {

inline constexpr std::string_view kFicheroEpigrafes = "EPIG.NOM";

/// A premium for accidents at work; rates in percent.
struct Epigrafe {
    std::string Codigo;  ///< three figures
    std::string Texto;
    double TipoIT = 0;   ///< temporary incapacity
    double TipoIMS = 0;  ///< invalidity, death and survival
};

class Epigrafes {
  public:
    /// Reads the whole text of "EPIG.NOM", Windows-1252. Throws FicheroMalFormado.
    explicit Epigrafes(std::string_view contenido = {});

    [[nodiscard]] const std::vector<Epigrafe>& filas() const { return filas_; }
    /// Items of the list `NomiEpigrafe`: "113-Trabajos exclusivos de oficina".
    [[nodiscard]] std::vector<std::string> lista() const;

    /// Quotas on a base at the rates of an epigraph, rounded to cents; 0 for one that isn't there.
    [[nodiscard]] double CuotaIT(double Base, std::string_view Codigo) const;
    [[nodiscard]] double CuotaIMS(double Base, std::string_view Codigo) const;

  private:
    [[nodiscard]] const Epigrafe* busca(std::string_view Codigo) const;

    std::vector<Epigrafe> filas_;
};

}  // namespace orvemo::nomina
