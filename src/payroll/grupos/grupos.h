#pragma once

namespace orvemo::grupos {

// The limits of the contribution bases of 2005 (Orden TAS/77/2005), euros.

/// The least base of a contract: a month, a day of a contract by days, an hour of a contract by hours.
struct BasesMinimas {
    double mensual, diaria, horaria;
};

/// Greatest monthly base, for common contingencies in every group and for accidents alike.
inline constexpr double kBaseMaxima = 2813.4;

/// Least bases for accidents, unemployment, FOGASA and training, the same in every group. The hour is a cent
/// dearer here than in the groups 4 to 11 for common contingencies.
inline constexpr BasesMinimas kMinimasProfesionales{598.5, 19.95, 2.99};

/// Contribution groups: 1 (engineers and graduates) to 11 (workers under 18).
inline constexpr int kPrimerGrupo = 1;
inline constexpr int kUltimoGrupo = 11;

/// Least bases for common contingencies of a group; all 0 for a group outside 1 to 11.
[[nodiscard]] BasesMinimas MinimasComunes(int grupo);

/// Greatest monthly base for common contingencies of a group; 0 for a group outside 1 to 11.
[[nodiscard]] double MaximaComun(int grupo);

}  // namespace orvemo::grupos
