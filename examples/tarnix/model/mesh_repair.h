#pragma once

#include "model/mesh.h"

namespace tarnix {

/// What a repair did, for the message to the user.
struct RepairReport
{
    int removed = 0; ///< triangles taken out
    int turned = 0;  ///< triangles turned round
    int added = 0;   ///< triangles that close holes
    int joined = 0;  ///< points that fell together

    bool IsEmpty() const { return removed == 0 && turned == 0 && added == 0 && joined == 0; }
    RepairReport& operator+=(const RepairReport& other);
};

/// Each makes a new mesh and adds to the report.
Mesh RemoveDegenerate(const Mesh& mesh, RepairReport& report);
Mesh RemoveDuplicates(const Mesh& mesh, RepairReport& report);
/// Joins points nearer than `tolerance` millimetres.
Mesh JoinPoints(const Mesh& mesh, double tolerance, RepairReport& report);
/// Turns triangles until neighbours agree and every closed shell has its volume inside.
Mesh OrientNormals(const Mesh& mesh, RepairReport& report);
Mesh FlipNormals(const Mesh& mesh);
/// Closes each open loop with a fan about its middle; loops that do not come back to their
/// start stay open.
Mesh CloseHoles(const Mesh& mesh, RepairReport& report);
/// All of the above in the order in which they help each other.
Mesh RepairAll(const Mesh& mesh, RepairReport& report);

/// One mesh a shell, largest surface first.
std::vector<Mesh> SplitShells(const Mesh& mesh);
Mesh Merge(const std::vector<Mesh>& meshes);

} // namespace tarnix
