#ifndef OrvKvLayout_H
#define OrvKvLayout_H

#include "CATDialog.h"

// Rows and columns of a panel, told in terms of tabulation lines:
//
//     OrvKvLayout layout(this);
//     layout.Rows(_pTypeSub, OrvKvFrom(0).StretchTo(1)).Columns(_pTypeSub, OrvKvFrom(0).StretchTo(1));
//
// A widget that could not be made (null) is left out.

// The lines between which a widget lies in one direction.
class OrvKvFrom {
  public:
    // Starts at a line and keeps its natural size.
    explicit OrvKvFrom(int iTab) : _leading(iTab) {}
    // Ends at a line that follows the content.
    OrvKvFrom To(int iTab) const { return OrvKvFrom(_leading, iTab, trailingEdge); }
    // Ends at a line that follows the container: the widget stretches.
    OrvKvFrom StretchTo(int iTab) const { return OrvKvFrom(_leading, iTab, stretchingEdge); }

  private:
    friend class OrvKvLayout;
    friend class OrvKvUntil;

    // The platform's attachment values.
    static constexpr int leadingEdge = 1;
    static constexpr int trailingEdge = 3;
    static constexpr int stretchingEdge = 4;

    OrvKvFrom(int iLeading, int iTrailing, int iMode)
        : _leading(iLeading), _trailing(iTrailing), _trailingMode(iMode) {}

    int _leading = 0;
    bool _hasLeading = true;
    int _trailing = 0;
    int _trailingMode = 0; // 0 without a trailing line
};

// Ends at a line that follows the content, and keeps its natural size.
class OrvKvUntil : public OrvKvFrom {
  public:
    explicit OrvKvUntil(int iTab) : OrvKvUntil(iTab, trailingEdge) {}
    // The same at a line that follows the container.
    static OrvKvUntil Stretching(int iTab) { return OrvKvUntil(iTab, stretchingEdge); }

  private:
    OrvKvUntil(int iTab, int iMode) : OrvKvFrom(0, iTab, iMode) { _hasLeading = false; }
};

class OrvKvLayout {
  public:
    // The container whose children are laid out; it must outlive this object.
    explicit OrvKvLayout(CATDialog* iContainer) : _container(iContainer) {}

    // Between which horizontal lines the child lies, from top to bottom.
    OrvKvLayout& Rows(CATDialog* iChild, const OrvKvFrom& iLines);
    // Between which vertical lines the child lies, from left to right.
    OrvKvLayout& Columns(CATDialog* iChild, const OrvKvFrom& iLines);
    // Forgets between which lines the child lies.
    OrvKvLayout& Reset(CATDialog* iChild);

  private:
    CATDialog* _container;
};

#endif
