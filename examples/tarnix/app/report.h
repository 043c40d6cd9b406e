#pragma once

#include <QByteArray>

namespace tarnix {

class Host;

/// A PDF document of the build: a picture, the figures of each part and the findings.
QByteArray ReportPdf(Host& host);

} // namespace tarnix
