#ifndef DecimalComma_H
#define DecimalComma_H

#include <string>

// A decimal comma for one test: an installed locale that has one, or one that is compiled into a temporary
// folder.
class DecimalComma {
  public:
    DecimalComma();
    ~DecimalComma();
    DecimalComma(const DecimalComma&) = delete;
    DecimalComma& operator=(const DecimalComma&) = delete;

    static bool IsThere();

  private:
    void SetCompiled();

    std::string _previous;
    std::string _folder;
};

#endif
