#include "lote/opciones_lote.h"

#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QDate>
#include <QStringList>
#include <algorithm>
#include <limits>

#include "foundations/values/numeros.h"

namespace orvemo::lote {

namespace {

const QCommandLineOption kRegistro{"registro", "Solo el registro N del fichero.", "N"};
const QCommandLineOption kHoy{"hoy", "Fecha de hoy, AAAA-MM-DD, en lugar de la del equipo.", "AAAA-MM-DD"};
const QCommandLineOption kDatos{"datos", "Directorio de los ficheros de datos del programa.", "DIR"};
const QCommandLineOption kPdf{"pdf", "Imprime cada informe en DIR/CALCULADORA-N.pdf.", "DIR"};
const QCommandLineOption kPapel{
    "papel", "Tipo de beneficiarios con que se capitalizan las pensiones, desde 0, en el orden de la lista.",
    "N"};
const QCommandLineOption kJson{"json", "Un objeto JSON por línea en lugar de texto."};
const QCommandLineOption kLista{
    "lista", "Muestra las calculadoras, una por línea, con su fichero de supuestos y el de sus ejemplos."};
const QCommandLineOption kNeto{"neto", "De «liquidos»: salario líquido mensual, en euros.", "EUROS"};
const QCommandLineOption kExtra{"extra", "De «liquidos»: pagas extra al año.", "N"};
const QCommandLineOption kGrupo{"grupo", "De «liquidos»: grupo de cotización, de 1 a 11.", "N"};
const QCommandLineOption kContrato{
    "contrato", "De «liquidos»: 0 indefinido, 1 de duración determinada, 2 sin cuota del trabajador.", "N"};
const QCommandLineOption kAyuda{{"h", "ayuda"}, "Muestra esta ayuda."};

// The parser sees every byte of the command line as one character: a file name needn't be UTF-8.
QString comoLlega(const std::string& argumento) {
    return QString::fromLatin1(argumento.data(), static_cast<qsizetype>(argumento.size()));
}

std::string comoSeDio(const QString& argumento) {
    return argumento.toLatin1().toStdString();
}

int leeEntero(const QString& texto, int minimo, int maximo, const char* motivo) {
    bool legible = false;
    const int numero = texto.toInt(&legible);
    if (!legible || numero < minimo || numero > maximo) throw ArgumentoInservible{motivo};
    return numero;
}

/// With a comma or a point before the cents.
std::string leeNeto(const QString& texto) {
    std::string neto = comoSeDio(texto);
    std::ranges::replace(neto, '.', ',');
    if (!EsNumero(neto)) throw ArgumentoInservible{"--neto debe ser un importe, como 1234,56."};
    return neto;
}

OpcionesLiquidos leeLiquidos(const QCommandLineParser& analizador) {
    OpcionesLiquidos liquidos;
    if (analizador.isSet(kNeto)) liquidos.neto = leeNeto(analizador.value(kNeto));
    if (analizador.isSet(kExtra)) {
        const int extra = leeEntero(analizador.value(kExtra), 0, std::numeric_limits<int>::max(),
                                    "--extra debe ser un número desde 0.");
        liquidos.extra = std::to_string(extra);
    }
    if (analizador.isSet(kGrupo)) {
        liquidos.grupo = leeEntero(analizador.value(kGrupo), 1, 11, "--grupo debe estar entre 1 y 11.");
    }
    if (analizador.isSet(kContrato)) {
        liquidos.contrato = leeEntero(analizador.value(kContrato), 0, 2, "--contrato debe ser 0, 1 o 2.");
    }
    return liquidos;
}

Fecha leeHoy(const QString& texto) {
    const QDate dia = QDate::fromString(texto, "yyyy-MM-dd");
    if (!ExisteFecha(dia.day(), dia.month(), dia.year()))
        throw ArgumentoInservible{"La fecha de --hoy debe ser AAAA-MM-DD."};
    return FechaDMA(dia.day(), dia.month(), dia.year());
}

std::string motivo(const QCommandLineParser& analizador) {
    const QStringList desconocidas = analizador.unknownOptionNames();
    if (desconocidas.empty()) return analizador.errorText().toStdString();
    return "No existe la opción «" + comoSeDio(desconocidas.front()) + "» (véase --ayuda).";
}

/// Takes the command off the front of the arguments.
Mandato tomaMandato(QStringList& sueltos) {
    if (sueltos.isEmpty()) return Mandato::Calcula;
    const bool exporta = sueltos.front() == "exporta";
    if (!exporta && sueltos.front() != "importa") return Mandato::Calcula;
    sueltos.removeFirst();
    return exporta ? Mandato::Exporta : Mandato::Importa;
}

/// A calculator a line, for scripts: name, case file and file of examples, those that it has.
std::string listaDe(Calculadoras catalogo) {
    std::string lista;
    for (const EntradaCatalogo& entrada : catalogo) {
        lista.append(entrada.clave).append(" ").append(entrada.registro.fichero);
        lista.append(entrada.ejemplos.empty() ? "" : " ").append(entrada.ejemplos).append("\n");
    }
    return lista;
}

void describe(QCommandLineParser& analizador, Calculadoras catalogo) {
    analizador.setApplicationDescription(
        "Calcula por lotes los supuestos de un fichero y da sus conclusiones.\n"
        "Con «exporta» delante los escribe como líneas JSON; con «importa» añade al fichero los que\n"
        "lee así de la entrada.");
    analizador.addPositionalArgument("", "", "[exporta|importa]");
    analizador.addPositionalArgument("CALCULADORA",
                                     QString::fromStdString("Una de: " + nombresDisponibles(catalogo)));
    analizador.addPositionalArgument("FICHERO", "Fichero de supuestos (*.nom).");
    analizador.addOptions(
        {kRegistro, kHoy, kDatos, kPdf, kPapel, kJson, kNeto, kExtra, kGrupo, kContrato, kLista, kAyuda});
}

}  // namespace

std::string nombresDisponibles(Calculadoras catalogo) {
    std::string nombres;
    for (const EntradaCatalogo& entrada : catalogo) {
        nombres.append(nombres.empty() ? "" : ", ").append(entrada.clave);
    }
    return nombres;
}

Opciones leeOpciones(const std::vector<std::string>& argumentos, Calculadoras catalogo) {
    QCommandLineParser analizador;
    describe(analizador, catalogo);
    QStringList lista;
    for (const std::string& argumento : argumentos) lista << comoLlega(argumento);
    if (!analizador.parse(lista)) throw ArgumentoInservible{motivo(analizador)};
    if (analizador.isSet(kAyuda)) throw PideAyuda{analizador.helpText().toStdString()};
    if (analizador.isSet(kLista)) throw PideAyuda{listaDe(catalogo)};
    QStringList sueltos = analizador.positionalArguments();

    Opciones opciones;
    opciones.mandato = tomaMandato(sueltos);
    if (sueltos.size() != 2) throw ArgumentoInservible{"Se esperan CALCULADORA y FICHERO (véase --ayuda)."};
    opciones.calculadora = comoSeDio(sueltos[0]);
    opciones.fichero = comoSeDio(sueltos[1]);
    if (analizador.isSet(kRegistro))
        opciones.registro = leeEntero(analizador.value(kRegistro), 1, std::numeric_limits<int>::max(),
                                      "El registro debe ser un número desde 1.");
    if (analizador.isSet(kHoy)) opciones.hoy = leeHoy(analizador.value(kHoy));
    if (analizador.isSet(kDatos)) opciones.datos = comoSeDio(analizador.value(kDatos));
    if (analizador.isSet(kPdf)) opciones.pdf = comoSeDio(analizador.value(kPdf));
    if (analizador.isSet(kPapel)) {
        opciones.papel = leeEntero(analizador.value(kPapel), 0, std::numeric_limits<int>::max(),
                                   "El papel debe ser un número desde 0.");
    }
    opciones.json = analizador.isSet(kJson);
    opciones.liquidos = leeLiquidos(analizador);
    return opciones;
}

}  // namespace orvemo::lote
