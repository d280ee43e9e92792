#pragma once

#include <string>

#include "foundations/frame/calculadora.h"
#include "foundations/values/dictamen.h"

namespace orvemo {

/// The wizard that most calculators are: panels of inputs one after another and a last panel of conclusions.
class Asistente : public Calculadora {
  public:
    Asistente(Entorno& entorno, DefCalculadora def);

    /// The case gave a positive result.
    [[nodiscard]] bool ConDerecho() const { return ConDerecho_; }
    /// The conclusions as they stand, line ends and report marks included.
    [[nodiscard]] const std::string& textoConclusion() const { return Conclusion.texto(); }

    /// Gate of `Siguiente`: speaks and puts the focus on the faulty field itself.
    [[nodiscard]] virtual bool ValidaPantalla() { return true; }
    void MuestraPantalla(int n) override;
    void ActualizaConclusion();
    void concluye() final;

  protected:
    // --- What a calculator tells

    /// What the calculation starts from; as a rule the fields, copied to the case buffer.
    virtual void preparaCaso() { DatosTomaPantalla(); }
    /// The calculation; it copies nothing.
    virtual void calcula(Dictamen& dictamen) = 0;
    /// Panels that `Siguiente` and `Anterior` lead to.
    [[nodiscard]] virtual int pantallaSiguiente(int pantalla) const { return pantalla + 1; }
    [[nodiscard]] virtual int pantallaAnterior(int pantalla) const { return pantalla - 1; }
    /// What happens on the way out of a panel by `Siguiente`, its checks passed.
    virtual void dejaPantalla(int /*pantalla*/) {}

  private:
    void avanza();
    void ponVeredicto(const Dictamen& dictamen);

    bool ConDerecho_ = false;

  public:
    // Controls of every wizard.
    Campo& Anterior;
    Campo& Siguiente;
    Campo& Conclusion;
    Campo& Ok;
    Campo& Mal;
};

template <typename Registro, const auto& kDiseno>
class AsistenteDe : public ConCaso<Asistente, Registro, kDiseno> {
    using ConCaso<Asistente, Registro, kDiseno>::ConCaso;
};

}  // namespace orvemo
