#pragma once

#include <string>

namespace LocalService
{
/** A random (version 4) UUID. Safe to call from any thread. */
std::string NewId();
}
