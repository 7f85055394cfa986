#pragma once

#include "Transport.h"

#include <memory>

struct LineProfile;

// The in-process virtual validator of the given family, behind a transport on the given line.
std::unique_ptr<Transport> makeSimulatedTransport(quint8 familyByte, const LineProfile &line);
