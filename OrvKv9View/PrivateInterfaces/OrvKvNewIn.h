#ifndef OrvKvNewIn_H
#define OrvKvNewIn_H

class CATDialog;

// A widget or panel in iParent; null where there is no parent or memory is short.
//
//     _pTypeLab = OrvKvNewIn<CATDlgLabel>(_pFrame, "TypeLab");
template<class Widget, class... Arguments>
Widget* OrvKvNewIn(CATDialog* iParent, const Arguments&... iArguments) {
    return iParent == nullptr ? nullptr : new Widget(iParent, iArguments...);
}

#endif
