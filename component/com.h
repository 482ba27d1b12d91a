#pragma once

// The component object model's types: those of the platform that it comes from, or their
// replacement elsewhere.
#ifdef _WIN32
#define WIN32_LEAN_AND_MEAN
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>
// The order matters: what follows needs what stands above.
#include <oleauto.h>
#include <olectl.h>
#include <unknwn.h>
#else
#include "component/com_replacement.h"
#endif
