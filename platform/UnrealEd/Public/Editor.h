#pragma once

#include "Editor/EditorEngine.h"
