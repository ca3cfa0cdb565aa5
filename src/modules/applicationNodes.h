#pragma once

#include "model/resNode.h"

/// The modules of the phone's applications besides the launcher. Each holds its pictures, its keys and a common block,
/// as far as the application has them.
namespace zdt {

class ContactsNode : public ResNode {
public:
    explicit ContactsNode(ResNode* parent);
};

class PhoneNode : public ResNode {
public:
    explicit PhoneNode(ResNode* parent);
};

class SystemuiNode : public ResNode {
public:
    explicit SystemuiNode(ResNode* parent);
};

/// The call recorder, the call service and the messaging application are plain nodes, out of small themes.
void addRecorderModule(ResNode& theme);
void addTelecomModule(ResNode& theme);
void addMmsModule(ResNode& theme);

} // namespace zdt
