// Whole cases as documents: each is filled in as a user would, concluded, printed, saved and loaded again.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "apoyo/entorno_falso.h"
#include "apoyo/vista_falsa.h"
#include "catalogue/catalogo.h"
#include "foundations/frame/asistente.h"
#include "foundations/values/formatos.h"
#include "foundations/values/numeros.h"
#include "foundations/values/textos.h"
#include "historias/documento.h"

namespace orvemo::pruebas {
namespace {

/// The text of an "ipc.txt" in which prices stood still.
std::string ipcPlano() {
    std::string texto;
    for (int anio = 1984; anio <= 2004; ++anio) {
        texto += "x\n";
        for (int mes = 1; mes <= 12; ++mes) texto += "x\tx\t100\n";
    }
    return texto;
}

/// A calculator just opened, and the user before it.
class Usuario {
  public:
    explicit Usuario(const Documento& documento) : mundo{documento.hoy} {
        mundo.almacen["ipc.txt"] = ipcPlano();
        mundo.valores.VerBaseActual = documento.basesFuturas;
        const Calculadoras catalogo = CalculadorasDelPrograma();
        const auto entrada = std::ranges::find(catalogo, documento.calculadora, &EntradaCatalogo::clave);
        if (entrada == catalogo.end()) throw std::runtime_error{"no calculator " + documento.calculadora};
        calculadora_ = entrada->registro.abre(mundo.entorno);
        frm().ponVista(&vista);
        frm().Inicia();
    }

    [[nodiscard]] Asistente& frm() { return dynamic_cast<Asistente&>(*calculadora_); }
    [[nodiscard]] Campo& campo(const Asignacion& a) { return frm().campo(a.campo, a.indice); }

    /// Goes on to the panel of the field and into it.
    void va(Campo& campo) {
        while (campo.pantalla() > frm().PantallaActual() && frm().pulsa(frm().Siguiente)) {
        }
        while (campo.pantalla() < frm().PantallaActual() && frm().pulsa(frm().Anterior)) {
        }
        EXPECT_TRUE(frm().enPantalla(campo)) << campo.def().nombre << " isn't on view";
        EXPECT_TRUE(frm().foco(campo)) << campo.def().nombre;
    }

    void rellena(const Asignacion& a) {
        Campo& campo = this->campo(a);
        va(campo);
        if (campo.def().clase == Clase::Boton) {
            EXPECT_TRUE(frm().pulsa(campo)) << a.campo;
        } else if (campo.def().clase == Clase::Casilla) {
            frm().marca(campo, a.valor == "sí");
        } else if (!campo.opciones().empty()) {
            const auto opcion = std::ranges::find(
                campo.opciones(), a.valor, [](const std::string& o) { return std::string{Recorta(o)}; });
            EXPECT_NE(opcion, campo.opciones().end()) << a.campo << " has no entry " << a.valor;
            frm().elige(campo, static_cast<int>(opcion - campo.opciones().begin()));
        } else {
            frm().escribe(campo, a.valor);
        }
    }

    /// Types on a field and tries to leave it: what was refused, or nothing.
    std::string escribeYDeja(Campo& campo, const std::string& texto) {
        va(campo);
        frm().escribe(campo, texto);
        mundo.mensajes.dichos.clear();
        frm().foco(frm().Siguiente);
        return mundo.mensajes.dichos.empty() ? "" : mundo.mensajes.dichos.front();
    }

    EntornoFalso mundo;
    VistaFalsa vista;

  private:
    std::unique_ptr<Calculadora> calculadora_;
};

// --- Stories

template <typename T>
std::string numeroEn(const std::string& bytes, std::size_t posicion) {
    T n{};
    std::memcpy(&n, bytes.substr(posicion, sizeof n).data(), sizeof n);
    return TextoPlano(n);
}

std::string loQueHay(const std::string& registro, const Bytes& bytes) {
    if (bytes.tipo == "entero") return numeroEn<std::int32_t>(registro, bytes.posicion);
    if (bytes.tipo == "doble") return numeroEn<double>(registro, bytes.posicion);
    if (bytes.tipo == "octeto") return numeroEn<std::uint8_t>(registro, bytes.posicion);
    return De1252(registro.substr(bytes.posicion, A1252(bytes.valor).size()));
}

/// Saves the case on screen under that name and gives its record.
std::string guarda(Usuario& usuario, const std::string& nombre) {
    usuario.vista.alGrabar = [&](GrabaSupuesto& dialogo) {
        dialogo.ponNombre(nombre);
        dialogo.BotonGrabar();
    };
    Asistente& frm = usuario.frm();
    EXPECT_TRUE(frm.pulsa(frm.BotonGraba));
    const std::string& fichero = usuario.mundo.almacen[frm.fichero()];
    return fichero.substr(fichero.size() - std::min(fichero.size(), frm.longitudRegistro()));
}

/// Saved and loaded, the case is the same: its bytes and its conclusions.
void guardaYVuelve(Usuario& usuario, const Historia& historia) {
    Asistente& frm = usuario.frm();
    const std::string registro = guarda(usuario, "Caso A");
    ASSERT_EQ(registro.size(), frm.longitudRegistro());
    for (const Bytes& bytes : historia.bytes) {
        EXPECT_EQ(loQueHay(registro, bytes), bytes.valor) << "at " << bytes.posicion;
    }
    ASSERT_TRUE(frm.pulsa(frm.BotonNuevo));
    frm.DatosCargaRegistro(1);
    frm.concluye();
    EXPECT_EQ(frm.textoConclusion(), historia.conclusion) << "once saved and loaded";
    std::string otro = guarda(usuario, "Caso B");
    EXPECT_EQ(otro.substr(0, 8), " Caso B ");
    otro.replace(1, 6, "Caso A");
    EXPECT_TRUE(otro == registro) << "saved again, other bytes";
}

void comparaInforme(const std::vector<std::string>& esperado, const std::vector<std::string>& impreso) {
    auto linea = impreso.begin();
    bool salta = false;
    for (const std::string& esperada : esperado) {
        if (esperada == "...") {
            salta = true;
            continue;
        }
        const auto hallada = salta ? std::find(linea, impreso.end(), esperada) : linea;
        salta = false;
        ASSERT_NE(hallada, impreso.end()) << "not printed: " << esperada;
        EXPECT_EQ(*hallada, esperada);
        linea = hallada + 1;
    }
    EXPECT_TRUE(salta || linea == impreso.end()) << "printed besides: " << *linea;
}

void compruebaHistoria(const Documento& documento, const Historia& historia) {
    SCOPED_TRACE(historia.titulo);
    Usuario usuario{documento};
    for (const Asignacion& a : historia.campos) usuario.rellena(a);
    Asistente& frm = usuario.frm();
    frm.concluye();
    EXPECT_EQ(frm.textoConclusion(), historia.conclusion);
    EXPECT_EQ(frm.ConDerecho(), historia.derecho);
    if (frm.PantallaActual() == frm.ultimaPantalla()) {
        EXPECT_EQ(frm.Ok.visible(), historia.derecho);
        EXPECT_NE(frm.Mal.visible(), historia.derecho);
    }
    EXPECT_EQ(usuario.mundo.mensajes.dichos, historia.mensajes);
    if (!historia.informe.empty()) {
        ASSERT_TRUE(frm.pulsa(frm.BotonPrint));
        comparaInforme(historia.informe, usuario.mundo.impresora.lineas);
    }
    if (historia.seGuarda) guardaYVuelve(usuario, historia);
}

// --- Cards

void compruebaLimites(Usuario& usuario, Campo& campo, const std::string& limites) {
    const auto a = limites.find(" a ");
    const auto letras = limites.find(" letras");
    if (limites.find(" / ") != std::string::npos) {
        std::string opciones;
        for (const std::string& opcion : campo.opciones())
            opciones += (opciones.empty() ? "" : " / ") + opcion;
        EXPECT_EQ(opciones, limites);
    } else if (letras != std::string::npos) {
        const auto largo = static_cast<std::size_t>(LeeEnteroRegional(limites.substr(0, letras)));
        usuario.escribeYDeja(campo, std::string(largo + 1, '8'));
        EXPECT_EQ(campo.texto(), std::string(largo, '8'));
    } else if (a != std::string::npos) {
        const std::string minimo = limites.substr(0, a), maximo = limites.substr(a + 3);
        std::string tope = maximo;
        std::erase(tope, ',');
        const std::string aviso =
            "Error: El número no es correcto. Debe introducir un número entre " + minimo + " y " + maximo;
        // The limits of eight figures are judged in single precision.
        const double encima = LeeNumero(tope) + (tope.size() > 7 ? 100 : 1);
        EXPECT_EQ(usuario.escribeYDeja(campo, TextoPlano(encima)), aviso);
        if (minimo != "0") {
            EXPECT_EQ(usuario.escribeYDeja(campo, TextoPlano(LeeNumero(minimo) - 1)), aviso);
        }
        EXPECT_EQ(usuario.escribeYDeja(campo, tope), "");
        EXPECT_EQ(usuario.escribeYDeja(campo, minimo), "");
    }
}

void compruebaFicha(const Documento& documento, const Ficha& ficha) {
    SCOPED_TRACE(ficha.campo.campo);
    Usuario nuevo{documento};
    Campo& campo = nuevo.campo(ficha.campo);
    const std::string defecto =
        ficha.campo.valor == "hoy" ? FormatoFecha(documento.hoy, "dd-MM-yyyy") : ficha.campo.valor;
    EXPECT_EQ(campo.def().clase == Clase::Casilla ? (campo.marcado() ? "sí" : "no") : campo.texto(), defecto);
    EXPECT_EQ(Recorta(campo.rotulo()), ficha.rotulo);
    EXPECT_EQ(campo.visible(), ficha.seVe.empty() || ficha.deEntrada) << "in a new case";
    if (ficha.seVe.empty() || ficha.deEntrada) compruebaLimites(nuevo, campo, ficha.limites);
    for (const auto& condiciones : ficha.seVe) {
        Usuario usuario{documento};
        std::string como;
        for (const Asignacion& a : condiciones) {
            usuario.rellena(a);
            como += a.campo + " = " + a.valor + "; ";
        }
        usuario.frm().foco(usuario.frm().Siguiente);
        Campo& suyo = usuario.campo(ficha.campo);
        EXPECT_TRUE(suyo.visible()) << "with " << como;
        if (suyo.visible() && &condiciones == &ficha.seVe.front())
            compruebaLimites(usuario, suyo, ficha.limites);
    }
}

/// The cards stand in the order of the fields and leave none out.
void compruebaOrden(const Documento& documento) {
    Usuario usuario{documento};
    std::vector<std::string> campos, fichas;
    for (const Campo& campo : usuario.frm().campos()) {
        if (campo.pantalla() >= 0 && campo.pantalla() < usuario.frm().ultimaPantalla() &&
            campo.def().indice <= 1 && campo.def().clase != Clase::Etiqueta)
            campos.push_back(campo.def().nombre);
    }
    for (const Ficha& ficha : documento.fichas) fichas.push_back(ficha.campo.campo);
    EXPECT_EQ(fichas, campos);
}

void compruebaVentana(const Documento& documento) {
    Usuario usuario{documento};
    Asistente& frm = usuario.frm();
    std::vector<std::string> textos{frm.Titulo(), frm.Caption(), frm.fichero(), frm.Subtitulo()};
    frm.concluye();
    textos.push_back(frm.Subtitulo());
    EXPECT_EQ(textos, documento.ventana);
}

class Historias : public testing::TestWithParam<std::string> {
  protected:
    Documento documento = leeDocumento(std::string{ORVEMO_HISTORIAS} + '/' + GetParam() + ".txt");
};

TEST_P(Historias, EachCaseIsToldAsWritten) {
    for (const Historia& historia : documento.historias) compruebaHistoria(documento, historia);
}

TEST_P(Historias, EachFieldIsAsItsCardTells) {
    compruebaVentana(documento);
    compruebaOrden(documento);
    for (const Ficha& ficha : documento.fichas) compruebaFicha(documento, ficha);
}

INSTANTIATE_TEST_SUITE_P(Todas, Historias,
                         testing::Values("jubilacion", "desempleo", "it", "maternidad", "riesgo",
                                         "nocontributiva", "familiar", "capital", "incapacidad", "muerte",
                                         "irpf"),
                         [](const auto& documento) { return documento.param; });

}  // namespace
}  // namespace orvemo::pruebas
