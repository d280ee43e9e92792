#pragma once

#include <QString>
#include <array>

namespace orvemo::dibuja {

inline constexpr int kMaterias = 8;

/// The captions of the library's subjects, by number less one; empty where the catalogue names none.
using Materias = std::array<QString, kMaterias>;

/// Reads the lines "#A:number@caption" of the catalogue, a Windows-1252 text. Throws std::runtime_error when
/// it can't be read.
[[nodiscard]] Materias leeMaterias(const QString& fichero);

}  // namespace orvemo::dibuja
