#include "benefits/nocontributiva/nocontributiva.h"

#include <string>

#include "foundations/values/formatos.h"
#include "foundations/values/numeros.h"

namespace orvemo::nocontributiva {

namespace {

// Figures of the law for 2005, euros a year unless said otherwise.
constexpr double kPensionIntegra = 4043.06;
constexpr double kPorMiembroMas = 2830.142;  // 70% of the full pension
constexpr double kPensionMinima = 1010.765;  // 25% of the full pension
constexpr double kMultiplicadorConvivencia = 2.5;
constexpr int kPagas = 14;               // payments a year
constexpr int kEdadJubilacion = 65;      // years
constexpr int kMayorDeEdad = 18;         // years
constexpr int kEstanciaJubilacion = 10;  // years of residence
constexpr int kEstanciaIncapacidad = 5;  // years of residence

using Caso = RegistroNoContributiva;

std::string importe(double euros) {
    return FormatoNumero(euros, "###,##0.00");
}

bool esMinusvalido(const Caso& caso) {
    return caso.Minusvalia != 0;
}

/// The full amount for one, and seven tenths for each further member or beneficiary.
double acumulado(int personas) {
    return (personas - 1.0) * kPorMiembroMas + kPensionIntegra;
}

// --- The steps: each gives true when the case goes on ---

bool cumpleEdad(const Caso& caso, int Edad, Dictamen& d) {
    if (esMinusvalido(caso) && Edad > kMayorDeEdad && Edad < kEdadJubilacion) {
        d.linea("Cumple la condición edad al ser mayor de 18 años y tener minusvalía > 65%");
        return true;
    }
    if (esMinusvalido(caso) && Edad < kMayorDeEdad) {
        d.linea("Debe ser mayor de 18 años para optar a la pensión por incapacidad > 65%");
        d.linea("NO TIENE DERECHO A PENSIÓN");
        return false;
    }
    // A disabled person of exactly 18 is told this too.
    if (Edad < kEdadJubilacion) {
        d.linea("No tiene la edad mínima de 65 años para optar la pensión no contributiva.");
        d.linea("NO TIENE DERECHO A PENSIÓN");
        return false;
    }
    return true;
}

bool cumpleEstancia(const Caso& caso, int Edad, Dictamen& d) {
    const bool porIncapacidad = esMinusvalido(caso) && Edad < kEdadJubilacion;
    if (caso.Estancia < kEstanciaJubilacion && !porIncapacidad) {
        d.linea("No lleva viviendo en España el mínimo de 10 años establecido");
        d.linea("como requisito.");
        d.AddConc("NO PUEDE RECIBIR PENSION.");
        return false;
    }
    if (porIncapacidad && caso.Estancia < kEstanciaIncapacidad) {
        d.linea("No lleva viviendo en España el mínimo de 5 años establecido");
        d.linea("como requisito para personas con incapacidad.");
        d.AddConc("NO PUEDE RECIBIR PENSION.");
        return false;
    }
    return true;
}

/// Told to everybody and tested in nobody.
void informaDeResidenciaPrevia(Dictamen& d) {
    d.linea("Debe haber residido legalmente en España los 2 años inmediatamente");
    d.linea("anteriores a la solicitud");
}

double limiteDeLaUnidad(const Caso& caso, Dictamen& d) {
    double Limite = acumulado(caso.NumMiembros);
    if (caso.NumMiembros > 1 && caso.Convive != 0) {
        d.linea("Se multiplica por 2.5 el límite máximo al convivir con hijos o padres.");
        Limite *= kMultiplicadorConvivencia;
    }
    return Redondeado(Limite, 2);
}

bool cabeEnElLimite(const Caso& caso, double Limite, Dictamen& d) {
    if (caso.RGlobal <= Limite) return true;
    d.linea("La renta global de la unidad familiar rebasa el límite de ingresos de ");
    d.linea("la unidad económica que es de ", importe(Limite), " €.");
    d.AddConc("POR TANTO, NO TIENE DERECHO A PENSION");
    return false;
}

void deniegaPorRenta(double PensionMaxima, Dictamen& d) {
    d.linea(
        "La pensión que le corresponde es nula porque la renta anual del beneficiario supera la de la "
        "pensión");
    d.linea("máxima a cobrar, que es de ", TextoPlano(PensionMaxima), " €.");
    d.AddConc("POR TANTO, NO TIENE DERECHO A PENSION");
}

void reparteEnPagas(double Pension, Dictamen& d) {
    d.linea("repartidas en 14 pagas de ", importe(Redondeado(Pension / kPagas, 2)), " €.");
}

void concedeEntera(double Pension, Dictamen& d) {
    const double concedida = Mayor(Pension, kPensionMinima);
    d.linea("La pensión a percibir será de ", importe(concedida), " € anuales.");
    reparteEnPagas(concedida, d);
}

/// What passes the limit is taken off in equal shares; the minimum is not looked at here.
void concedeReducida(double Pension, double exceso, double Limite, int NumBenef, Dictamen& d) {
    d.linea("La pensión bruta es de ", importe(Pension), " €.");
    const double reducida = Pension - Cociente(exceso, NumBenef);
    d.linea("La renta global, sumadas las pensiones no contributivas, supera el límite de ", importe(Limite),
            " €.");
    d.linea("por lo que la pensión a percibir se reduce a ", importe(reducida), " € anuales,");
    reparteEnPagas(reducida, d);
}

}  // namespace

void CalculaNoContributiva(const RegistroNoContributiva& caso, Fecha hoy, Dictamen& dictamen) {
    dictamen.vacia();
    const int Edad = AniosCumplidos(caso.FechaNac, hoy);
    dictamen.linea("El interesado desea solicitar una pensión no contributiva a los ", Edad, " años.");
    if (!cumpleEdad(caso, Edad, dictamen) || !cumpleEstancia(caso, Edad, dictamen)) return;
    informaDeResidenciaPrevia(dictamen);
    const double Limite = limiteDeLaUnidad(caso, dictamen);
    if (!cabeEnElLimite(caso, Limite, dictamen)) return;
    const double porBeneficiario = Cociente(acumulado(caso.NumBenef), caso.NumBenef);
    const double PensionMaxima = Redondeado(porBeneficiario, 2);
    const double Pension = PensionMaxima - caso.Renta;
    if (Pension < 0) return deniegaPorRenta(PensionMaxima, dictamen);
    dictamen.ConDerecho = true;
    const double Suma = caso.RGlobal - caso.RenBene + caso.NumBenef * porBeneficiario;
    if (Suma <= Limite) {
        concedeEntera(Pension, dictamen);
    } else {
        concedeReducida(Pension, Suma - Limite, Limite, caso.NumBenef, dictamen);
    }
}

}  // namespace orvemo::nocontributiva
