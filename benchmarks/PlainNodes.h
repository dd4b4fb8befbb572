#ifndef PlainNodes_H
#define PlainNodes_H

#include <memory>
#include <vector>

// The floor of everything that climbs: an event and nodes that know their parent.
struct PlainEvent {
    virtual ~PlainEvent() = default;
    virtual const char* Name() const { return "PressEvent"; }
};

struct PlainNode {
    explicit PlainNode(PlainNode* iParent) : parent(iParent) {}
    virtual ~PlainNode() = default;
    // True when the event has been handled.
    virtual bool Handle(const PlainEvent&) { return false; }

    PlainNode* parent;
    bool isShown = true;
    bool isEnabled = true;
};

// Offers the event to iFrom and its parents until one of them has handled it.
inline void Climb(PlainNode* iFrom, const PlainEvent& iEvent) {
    for (PlainNode* node = iFrom; node != nullptr; node = node->parent)
        if (node->Handle(iEvent))
            return;
}

// A chain of nodes below ioTop; the last one is the lowest.
inline std::vector<std::unique_ptr<PlainNode>> MakeChain(PlainNode& ioTop, int iCount) {
    std::vector<std::unique_ptr<PlainNode>> chain;
    PlainNode* lowest = &ioTop;
    for (int level = 0; level < iCount; ++level) {
        chain.push_back(std::make_unique<PlainNode>(lowest));
        lowest = chain.back().get();
    }
    return chain;
}

#endif
