#include "ToolSession.h"

ToolSession::ToolSession(const std::string& dataFolder) {
    weaver.StartUp(dataFolder);
}
