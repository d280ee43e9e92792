#include "foundations/values/mensajes.h"

#include <ctime>

namespace orvemo {

Fecha RelojDelSistema::hoy() const {
    constexpr int kAnioBase = 1900;  // std::tm counts its years from here
    const std::time_t ahora = std::time(nullptr);
    std::tm local{};
    localtime_r(&ahora, &local);
    return FechaDMA(local.tm_mday, local.tm_mon + 1, local.tm_year + kAnioBase);
}

}  // namespace orvemo
