// host/: a node that shows content in an area of the display.
#pragma once

#include "hnode.h"

namespace Lw {

class HContentNode : public HNode
{
    Q_OBJECT

public:
    explicit HContentNode(QObject *parent = nullptr);
    ~HContentNode() override;
};

} // namespace Lw
