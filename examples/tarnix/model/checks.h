#pragma once

#include "model/format.h"
#include "model/scene.h"

namespace tarnix {

/// One thing that a build check found.
struct Finding
{
    enum class Level
    {
        Good,
        Note,
        Warning,
        Fault
    };

    Level level = Level::Good;
    int part = 0;    ///< id of the part; 0 for the whole build
    QString subject; ///< name of the part
    QString text;    ///< one sentence
};

/// Looks at every visible part: whether it is closed, right way out, on the plate, inside the
/// build volume, free of others and without large overhangs. Worst first; one good finding when
/// there is nothing to report.
std::vector<Finding> CheckBuild(const Scene& scene, double overhang_degrees,
                                const Formatter& format);

/// The figures of a part, as pairs of title and value.
std::vector<std::pair<QString, QString>> PartFigures(const Part& part, double density,
                                                     const Formatter& format);

/// A plain-text report of the build with its parts and findings.
QString BuildReport(const Scene& scene, double overhang_degrees, double density,
                    const Formatter& format);

} // namespace tarnix
