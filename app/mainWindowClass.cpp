#include "app/mainWindowClass.h"

void mainWindowClass::windowDidLoad() {}
