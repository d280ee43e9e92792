#include "historias/documento.h"

#include <algorithm>
#include <charconv>
#include <fstream>
#include <map>
#include <stdexcept>
#include <string_view>

#include "foundations/values/formatos.h"
#include "foundations/values/numeros.h"
#include "foundations/values/textos.h"

namespace orvemo::pruebas {

namespace {

using Lineas = std::vector<std::string>;

std::string recorta(std::string_view texto) {
    return std::string{Recorta(texto)};
}

/// The pieces of a text between separators, without the blanks around them.
Lineas parte(std::string_view texto, std::string_view separador) {
    Lineas partes;
    while (true) {
        const auto fin = texto.find(separador);
        partes.push_back(recorta(texto.substr(0, fin)));
        if (fin == std::string_view::npos) return partes;
        texto.remove_prefix(fin + separador.size());
    }
}

void reemplaza(std::string& texto, std::string_view viejo, std::string_view nuevo) {
    for (auto i = texto.find(viejo); i != std::string::npos; i = texto.find(viejo, i + nuevo.size())) {
        texto.replace(i, viejo.size(), nuevo);
    }
}

int numero(const std::string& texto) {
    int n = 0;
    const auto [fin, error] = std::from_chars(texto.data(), texto.data() + texto.size(), n);
    if (error != std::errc{} || fin != texto.data() + texto.size()) throw std::runtime_error{"no number"};
    return n;
}

/// "JubiBase 3" or "Edad".
Asignacion campoNombrado(const std::string& nombre) {
    const Lineas partes = parte(nombre, " ");
    return {.campo = partes[0], .indice = partes.size() > 1 ? numero(partes[1]) : 0, .valor = {}};
}

/// "Edad = 40".
Asignacion asignacion(const std::string& linea) {
    const auto igual = linea.find('=');
    if (igual == std::string::npos) throw std::runtime_error{"nothing that a story says: " + linea};
    Asignacion campo = campoNombrado(recorta(linea.substr(0, igual)));
    campo.valor = recorta(linea.substr(igual + 1));
    return campo;
}

/// The line of a text, with its line end unless told otherwise; "|" alone is an empty one.
std::string lineaDeTexto(std::string linea) {
    if (linea == "|") linea.clear();
    const bool sinFin = linea.ends_with('\\');
    if (sinFin) linea.pop_back();
    reemplaza(linea, "\\s", " ");
    return sinFin ? linea : linea + "\r\n";
}

class Lector {
  public:
    explicit Lector(const std::filesystem::path& ruta) {
        std::ifstream fichero{ruta};
        if (!fichero) throw std::runtime_error{"no document " + ruta.string()};
        int n = 0;
        for (std::string linea; std::getline(fichero, linea);) {
            ++n;
            try {
                lee(linea);
            } catch (const std::exception& error) {
                throw std::runtime_error{ruta.string() + ':' + std::to_string(n) + ": " + error.what()};
            }
        }
    }

    Documento documento{.hoy = FechaDMA(15, 6, 2005)};

  private:
    void lee(const std::string& linea) {
        if (linea.empty() || Recorta(linea).starts_with('#')) return;
        if (linea.starts_with("  ")) {
            leeDeSeccion(linea.substr(2));
        } else {
            const auto blanco = linea.find(' ');
            abreSeccion(linea.substr(0, blanco),
                        blanco == std::string::npos ? std::string{} : linea.substr(blanco + 1));
        }
    }

    void abreSeccion(const std::string& seccion, const std::string& resto) {
        seccion_ = seccion;
        if (seccion == "calculadora") {
            documento.calculadora = resto;
        } else if (seccion == "hoy") {
            documento.hoy = LeeFecha(resto);
        } else if (seccion == "bases") {
            documento.basesFuturas = resto == "futuras";
        } else if (seccion == "frase") {
            frase_ = resto;
        } else if (seccion == "historia") {
            documento.historias.push_back({.titulo = resto, .campos = siempre_});
        } else if (seccion != "ventana" && seccion != "siempre" && seccion != "fichas") {
            throw std::runtime_error{"no section " + seccion};
        }
    }

    void leeDeSeccion(const std::string& linea) {
        if (seccion_ == "ventana") {
            documento.ventana.push_back(linea);
        } else if (seccion_ == "frase") {
            frases_[frase_] += lineaDeTexto(linea);
        } else if (seccion_ == "siempre") {
            pon(siempre_, asignacion(linea));
        } else if (seccion_ == "fichas") {
            documento.fichas.push_back(ficha(linea));
        } else if (seccion_ == "historia") {
            cuenta(documento.historias.back(), linea);
        } else {
            throw std::runtime_error{"a line out of place"};
        }
    }

    /// "Horas | Horas a la semana: | 0 | 1 a 39 | Parcial = sí".
    static Ficha ficha(const std::string& linea) {
        Lineas celdas = parte(linea, "|");
        celdas.resize(5);
        Ficha ficha{.campo = campoNombrado(celdas[0]), .rotulo = celdas[1], .limites = celdas[3]};
        ficha.campo.valor = celdas[2];
        if (celdas[4].empty()) return ficha;
        for (const std::string& alternativa : parte(celdas[4], ";")) {
            if (alternativa == "de entrada") {
                ficha.deEntrada = true;
                continue;
            }
            auto& condiciones = ficha.seVe.emplace_back();
            for (const std::string& condicion : parte(alternativa, " y "))
                condiciones.push_back(asignacion(condicion));
        }
        return ficha;
    }

    void cuenta(Historia& historia, const std::string& linea) const {
        if (linea == "con derecho" || linea == "sin derecho") {
            historia.derecho = linea == "con derecho";
        } else if (linea == "sin guardar") {
            historia.seGuarda = false;
        } else if (linea.starts_with("|")) {
            historia.conclusion += lineaDeTexto(linea == "|" ? linea : linea.substr(2));
        } else if (linea.starts_with("+ ")) {
            historia.conclusion += fraseDe(linea.substr(2));
        } else if (linea.starts_with("mensaje ")) {
            historia.mensajes.push_back(linea.substr(8));
            historia.seGuarda = false;
        } else if (linea.starts_with(": ")) {
            historia.informe.push_back(linea.substr(2));
        } else {
            for (const std::string& dato : parte(linea, " ; ")) {
                if (dato.starts_with("en ")) {
                    historia.bytes.push_back(bytes(dato));
                } else {
                    llena(historia.campos, asignacion(dato));
                }
            }
        }
    }

    /// "en 181 doble 8400".
    static Bytes bytes(const std::string& dato) {
        const Lineas partes = parte(dato, " ");
        const std::string valor = dato.substr(dato.find(partes.at(2)) + partes[2].size());
        return {.posicion = static_cast<std::size_t>(numero(partes.at(1))),
                .tipo = partes[2],
                .valor = recorta(valor)};
    }

    /// A field that every story fills in keeps its turn; others may be filled in again and again.
    void llena(std::vector<Asignacion>& campos, const Asignacion& nuevo) const {
        const bool deSiempre =
            std::ranges::any_of(siempre_, [&](const Asignacion& campo) { return campo.mismoCampo(nuevo); });
        if (deSiempre) {
            pon(campos, nuevo);
        } else {
            campos.push_back(nuevo);
        }
    }

    static void pon(std::vector<Asignacion>& campos, const Asignacion& nuevo) {
        const auto mismo =
            std::ranges::find_if(campos, [&](const Asignacion& campo) { return campo.mismoCampo(nuevo); });
        if (mismo == campos.end()) {
            campos.push_back(nuevo);
        } else {
            mismo->valor = nuevo.valor;
        }
    }

    /// "derecho 240": the sentence of that name, with what it says of this case.
    [[nodiscard]] std::string fraseDe(const std::string& linea) const {
        const auto blanco = linea.find(' ');
        const auto frase = frases_.find(linea.substr(0, blanco));
        if (frase == frases_.end()) throw std::runtime_error{"no sentence " + linea};
        std::string texto = frase->second;
        int n = 0;
        if (blanco != std::string::npos) {
            for (const std::string& dato : parte(linea.substr(blanco + 1), " / "))
                reemplaza(texto, "$" + std::to_string(++n), dato);
        }
        return texto;
    }

    std::string seccion_, frase_;
    std::map<std::string, std::string> frases_;
    std::vector<Asignacion> siempre_;
};

}  // namespace

Documento leeDocumento(const std::filesystem::path& ruta) {
    return Lector{ruta}.documento;
}

}  // namespace orvemo::pruebas
