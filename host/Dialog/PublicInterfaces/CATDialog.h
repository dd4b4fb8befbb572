#ifndef CATDialog_H
#define CATDialog_H

#include "CATCommand.h"
#include "CATDlgDefine.h"
#include "CATDlgGridConstraints.h"
#include "CATString.h"
#include "CATUnicodeString.h"

#include <cstddef>

namespace host {
class ChangeLog;
class DialogUser;
class Inspector;
class ResourceTexts;
class WidgetTree;
struct DialogExtras;
struct WidgetEvent;
} // namespace host

// Base of all widgets: a named node of the dialog tree with title, visibility, sensitivity, help, icons and a
// place in its parent's layout.
//
// A widget is made with new and belongs to its parent, which deletes it. It is a plain record of what would
// be seen: nothing is drawn here. Changes made by program never act as a person; an operation that is asked
// to notify does so before it returns.
class CATDialog : public CATCommand {
    CATDeclareClass;

  public:
    // iName is the identifier of the widget among its siblings; it may be used twice. Without a parent the
    // widget stands alone and belongs to whoever made it.
    CATDialog(CATDialog* iParent, const CATString& iName, CATDlgStyle iStyle = 0);
    // A copy has the look of the original, and neither parent nor children.
    CATDialog(const CATDialog& iOther);
    CATDialog& operator=(const CATDialog& iOther);
    ~CATDialog() override;

    // Gives null where memory is short; the new-expression is then null and no constructor runs.
    static void* operator new(std::size_t iSize) noexcept;
    static void operator delete(void* iMemory) noexcept;

    CATString GetResourceName() const { return GetName(); }

    // The title set last; before that the text of the resource file, and without one the widget's name.
    void SetTitle(const CATUnicodeString& iTitle);
    CATUnicodeString GetTitle() const;

    // The widget's own flag; a shown widget in a hidden parent is not seen. CATDlgShow or CATDlgHide; any
    // other value changes nothing.
    void SetVisibility(CATULong iVisibility);
    CATULong GetVisibility() const;
    // The widget's own flag; an enabled widget in a disabled parent cannot be used. CATDlgEnable or
    // CATDlgDisable; any other value changes nothing.
    void SetSensitivity(CATULong iSensitivity);
    CATULong GetSensitivity() const;
    // Sent when the visibility changes, once somebody has asked for it.
    CATNotification* GetVisibilityNotification();

    // Balloon over the widget, explanation on request, and text in the status bar. What was not set comes
    // from the resource file and is empty without one.
    void SetShortHelp(const CATUnicodeString& iText);
    CATUnicodeString GetShortHelp() const;
    void SetLongHelp(const CATUnicodeString& iText);
    CATUnicodeString GetLongHelp() const;
    void SetHelp(const CATUnicodeString& iText);
    CATUnicodeString GetHelp() const;

    // File names without suffix, for the four states.
    void SetIconName(const CATString& iNormal, const CATString& iSelected = "", const CATString& iFocus = "",
                     const CATString& iDisabled = "");

    // Place in pixels. The extent is positional: height, then width.
    void SetRectDimensions(int iX, int iY, int iHeight, int iWidth);
    void GetRectDimensions(int* oX, int* oY, int* oHeight, int* oWidth) const;

    // Direction of children without attachment.
    void SetDefaultOrientation(CATDlgOrientation iOrientation);

    // Ties the listed children of this container to a tabulation line; lines are numbered from the left and
    // from the top. The list ends with a null pointer. What is no child of this container is left out.
    void SetHorizontalAttachment(int iTab, CATDlgAttachment iMode, CATDialog* iFirst, ...);
    void SetVerticalAttachment(int iTab, CATDlgAttachment iMode, CATDialog* iFirst, ...);
    // Forgets every attachment of the listed children; the list ends with a null pointer.
    void ResetAttachment(CATDialog* iFirst, ...);
    // Makes the child fill this container.
    void Attach4Sides(CATDialog* iChild);

    // Place in the parent's grid; without effect when the parent has no grid layout.
    void SetGridConstraints(const CATDlgGridConstraints& iConstraints);
    void SetGridConstraints(int iRow, int iColumn, int iHorizontalSpan, int iVerticalSpan,
                            unsigned int iJustification);
    // Lets a row or column of this container's grid take surplus space (1) or keep its size (0).
    void SetGridRowResizable(int iRow, int iFlag = 1);
    void SetGridColumnResizable(int iColumn, int iFlag = 1);

    // Name of the resource file of the class: of the class itself at level 0 and below, of the classes above
    // it at higher levels. Null, empty, or the name of the level before ends the row.
    virtual char* GetResourceFilename(int iLevel) const;
    // The text of iKey in this widget's own resource files, or in those of the nearest parent that has some.
    // 1 when found; 0 and oValue untouched otherwise.
    int GetResourceValueFromKey(const CATString& iKey, CATUnicodeString& oValue) const;

    // CATCommand
    // Takes the widget out of its parent's layout at once; its name can be used again right away.
    void RequestDelayedDestruction() override;

  protected:
    // The widget's one notification object of a class; made on the first call.
    template<class Notification>
    CATNotification* Event();
    // That object if somebody has asked for it, else null.
    CATNotification* FindEvent(const char* iClassName) const;
    // Sends one of the widget's own notifications upwards, from a widget without father to the widget itself.
    // The widget may be gone afterwards.
    void SendEvent(CATNotification* iEvent);
    // Keeps a value that watchers see; one that is there already is no change. iKind is a host::ChangeKind.
    template<class Place, class Value>
    void Store(Place& ioPlace, const Value& iValue, unsigned int iKind) {
        if (ioPlace == iValue)
            return;
        ioPlace = iValue;
        NoteChange(iKind);
    }
    // Tells watchers that something visible has changed; iKind is a host::ChangeKind.
    void NoteChange(unsigned int iKind) {
        if (_isWatched)
            RecordChange(iKind);
    }
    // For widgets that take no children: one that is made in them is recorded as a misuse.
    void TakeNoChildren() { _takesChildren = false; }
    // For windows, which have no place in their parent's layout.
    void StandAlone() { _isWindow = true; }
    // For tab containers, whose children lie behind one another.
    void HoldPages() { _holdsPages = true; }
    // For widgets that draw their title.
    void DrawTitle(bool iDraws = true) { _drawsTitle = iDraws; }

  private:
    friend class host::ChangeLog;
    friend class host::DialogUser;
    friend class host::Inspector;
    friend class host::ResourceTexts;
    friend class host::WidgetTree;

    // The tabulation lines on which the sides of a child lie, in one direction.
    struct TabPlace {
        int leading = 0;
        int trailing = 0;
        bool hasLeading = false;
        bool hasTrailing = false;
        bool isCentred = false; // the leading line is that of the centre
        bool stretches = false; // the trailing line follows the container
    };

    host::DialogExtras& Extras();
    void KeepEvent(CATNotification* iEvent);
    void RecordChange(unsigned int iKind);
    void Attach(TabPlace& ioPlace, int iTab, CATDlgAttachment iMode);

    static bool _isWatched; // whether any observer listens

    CATDialog* _parent;               // not owned
    CATDialog* _firstChild = nullptr; // children belong to the widget, those on their way out included
    CATDialog* _lastChild = nullptr;
    CATDialog* _previousSibling = nullptr;
    CATDialog* _nextSibling = nullptr;
    host::WidgetEvent* _events = nullptr;  // the widget's own notification objects
    host::DialogExtras* _extras = nullptr; // what few widgets have; null as long as there is none
    CATDlgStyle _style;
    TabPlace _columns;
    TabPlace _rows;
    bool _isShown = true;
    bool _isEnabled = true;
    bool _takesChildren = true;
    bool _isWindow = false;
    bool _holdsPages = false;
    bool _drawsTitle = false;
    CATDlgOrientation _orientation = Horizontal;
};

#endif
