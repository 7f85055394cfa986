#pragma once

#include "Transport.h"

#include <memory>

// The in-process virtual validator of the given family, behind a transport.
std::unique_ptr<Transport> makeSimulatedTransport(quint8 familyByte);
