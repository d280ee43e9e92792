#include "tax/datos_retencion.h"

#include <gtest/gtest.h>

#include "tax/personas.h"

namespace orvemo::irpf {
namespace {

using namespace pruebas;

TEST(DatosRetencion, LosFamiliaresOcupanSusBytes) {
    DatosRetencion datos = trabajador(0);
    datos.Hijos[1] = hijo(1998, 1, 2003, 2);
    datos.Ascendientes[4] = ascendiente(1926, 3, 1);
    const std::string bytes = kDiseno.escribe(datos);
    ASSERT_EQ(bytes.size(), 482U);
    // 1998 is 0x07CE, 2003 0x07D3, 1926 0x0786.
    EXPECT_EQ(bytes.substr(271, 9), std::string("\1\xCE\x07\1\xD3\x07\0\0\2", 9));
    EXPECT_EQ(bytes.substr(376, 6), std::string("\1\x86\x07\3\1\0", 6));
    EXPECT_EQ(bytes.substr(170, 4), std::string("\xAD\x07\0\0", 4));

    DatosRetencion leidos;
    kDiseno.lee(bytes, leidos);
    EXPECT_EQ(leidos.Hijos, datos.Hijos);
    EXPECT_EQ(leidos.Ascendientes, datos.Ascendientes);
}

}  // namespace
}  // namespace orvemo::irpf
