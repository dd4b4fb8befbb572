#ifndef PlainParameterList_H
#define PlainParameterList_H

#include "ParameterFacts.h"
#include "PlainNodes.h"

#include <array>
#include <functional>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

// Marker, name, value, tolerance, description.
typedef std::array<std::string, 5> ParameterRow;

// The floor of a parameter: a value, a tolerance, and who wants to hear of them.
class PlainParameter {
  public:
    typedef std::function<void()> Callback;
    explicit PlainParameter(const ParameterFacts& iFacts)
        : _millimetres(iFacts.millimetres), _hasLimits(iFacts.hasLimits), _upper(iFacts.upper),
          _lower(iFacts.lower) {}

    // "12.5mm"
    std::string Show() const;
    bool HasLimits() const { return _hasLimits; }
    double Upper() const { return _upper; }
    double Lower() const { return _lower; }

    // Calls who listens to the value.
    void SetValue(double iMillimetres);
    void Listen(const void* iListener, Callback iOnValue, Callback iOnTolerance);
    void StopListening(const void* iListener);

  private:
    struct Listener {
        const void* who;
        Callback call;
    };

    double _millimetres;
    bool _hasLimits;
    double _upper;
    double _lower;
    std::vector<Listener> _onValue;
    std::vector<Listener> _onTolerance;
};

// Climbs when a value has changed.
struct PlainModifiedEvent : PlainEvent {
    explicit PlainModifiedEvent(const std::string& iParameter) : parameter(iParameter) {}
    const char* Name() const override { return "ModifiedEvent"; }

    std::string parameter;
};

// What is known about names, whatever list shows them.
typedef std::unordered_map<std::string, std::string> PlainDescriptions;
struct PlainNames {
    const PlainDescriptions& descriptions;
    std::unordered_set<std::string> modified;
};

// Those of all described parameters, made once.
const PlainDescriptions& AllPlainDescriptions();

// The floor of the parameter list: the same texts, subscriptions, look-up of names and notifications, and
// nothing else.
class PlainParameterList : public PlainNode {
  public:
    // What the list is filled with; entry i of every vector belongs to parameter i.
    struct Content {
        void Add(PlainParameter& ioParameter, const ParameterFacts& iFacts);

        std::vector<PlainParameter*> parameters;
        std::vector<std::string> names;
        std::vector<std::string> tolerances;
        std::vector<int> isValueShown;
        std::vector<int> isValueEditable;
        std::vector<int> isToleranceShown;
        std::vector<int> isToleranceEditable;
    };

    PlainParameterList(PlainNode* iParent, const PlainNames& iNames) : PlainNode(iParent), _names(iNames) {}
    ~PlainParameterList() override { Unfollow(); }

    void SetParameters(const Content& iContent);
    const ParameterRow& Row(int iRow) const { return _rows[static_cast<std::size_t>(iRow)]; }

  private:
    void Unfollow();
    void AppendRow(std::size_t iPosition, const std::string& iTolerance);
    void OnValueChanged(int iRow);
    void OnToleranceChanged(int iRow);
    std::size_t PositionOf(int iRow) const;

    std::string ShownValue(std::size_t iPosition) const;
    std::string ShownLimits(std::size_t iPosition) const;
    const char* MarkerOf(const std::string& iName) const;

    const PlainNames& _names;
    Content _content; // without tolerances
    std::unordered_map<std::string, std::size_t> _positions;
    std::vector<ParameterRow> _rows;
};

// The row that the floor shows for that parameter, the value given for itself.
ParameterRow FloorRow(const ParameterFacts& iFacts, double iMillimetres);

#endif
