#include "Misc/CoreDelegates.h"

TMulticastDelegate<> FCoreDelegates::OnBeginFrame;
