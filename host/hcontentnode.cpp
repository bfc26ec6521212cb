#include "hcontentnode.h"

namespace Lw {

HContentNode::HContentNode(QObject *parent) : HNode(parent) { }

HContentNode::~HContentNode() = default;

} // namespace Lw
