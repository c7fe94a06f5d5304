#include "app/services/mainWindowClass.h"

void mainWindowClass::windowDidLoad() {}
