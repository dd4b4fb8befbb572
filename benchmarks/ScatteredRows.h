#ifndef ScatteredRows_H
#define ScatteredRows_H

// Visits all of iCount rows, a power of ten, in an order that no cache foresees, and then begins again.
class ScatteredRows {
  public:
    explicit ScatteredRows(int iCount) : _count(iCount), _step(6180339 % iCount) {}

    int Next() {
        _row = (_row + _step) % _count;
        return _row;
    }

  private:
    int _count;
    int _step; // ends in 9, so that it shares no factor with a power of ten
    int _row = 0;
};

#endif
