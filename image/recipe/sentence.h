#pragma once

// The keys of recipes, which stand before the other files of this room, have messages too.
#include "image/types/sentence.h"
