#ifndef OrvKvAsMultiList_H
#define OrvKvAsMultiList_H

class CATCommand;
class CATDlgMultiList;

// The list that sent a notification; null where the sender is none, or no list.
CATDlgMultiList* OrvKvAsMultiList(CATCommand* iFrom);

#endif
