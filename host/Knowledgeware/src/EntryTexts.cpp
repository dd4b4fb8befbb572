#include "EntryTexts.h"

#include "host/MessageCatalogs.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace host {

namespace {

// As the host names them; a text stands in each of them, in this order.
constexpr const char* languages[] = {"", "German", "French", "Japanese"};

struct Translated {
    const char* texts[std::size(languages)];
};

// In the order of EntryText.
constexpr Translated sentences[] = {
    // NothingTyped
    {"no number is typed", "keine Zahl eingegeben", "aucun nombre n'est saisi", "数が入力されていません"},
    // NotANumber
    {"'/p1' is not a number", "'/p1' ist keine Zahl", "'/p1' n'est pas un nombre",
     "「/p1」は数ではありません"},
    // OutsideRange
    {"'/p1' is outside the range of numbers", "'/p1' liegt außerhalb des Zahlenbereichs",
     "'/p1' est hors de la plage des nombres", "「/p1」は数の範囲を超えています"},
    // SeveralNumbers
    {"'/p1' is more than one number", "'/p1' ist mehr als eine Zahl", "'/p1' contient plus d'un nombre",
     "「/p1」に数が二つ以上あります"},
    // NotAWholeNumber
    {"'/p1' is not a whole number from -2147483648 to 2147483647",
     "'/p1' ist keine ganze Zahl von -2147483648 bis 2147483647",
     "'/p1' n'est pas un nombre entier de -2147483648 à 2147483647",
     "「/p1」は-2147483648から2147483647までの整数ではありません"},
    // NeitherTrueNorFalse
    {"'/p1' is neither true nor false", "'/p1' ist weder true noch false", "'/p1' n'est ni true ni false",
     "「/p1」はtrueでもfalseでもありません"},
    // OpenParenthesis
    {"'/p1' leaves a parenthesis open", "'/p1' lässt eine Klammer offen",
     "'/p1' laisse une parenthèse ouverte", "「/p1」に閉じていない括弧があります"},
    // NotOpenParenthesis
    {"'/p1' closes a parenthesis that is not open", "'/p1' schließt eine Klammer, die nicht offen ist",
     "'/p1' ferme une parenthèse qui n'est pas ouverte", "「/p1」は開いていない括弧を閉じています"},
    // TooManyParentheses
    {"'/p1' has more than /p2 parentheses in one another",
     "'/p1' hat mehr als /p2 ineinander geschachtelte Klammern", "'/p1' imbrique plus de /p2 parenthèses",
     "「/p1」は括弧の入れ子が/p2段を超えています"},
    // NoNumberBehind
    {"'/p1' has no number behind '/p2'", "'/p1' hat keine Zahl hinter '/p2'",
     "'/p1' n'a pas de nombre après '/p2'", "「/p1」の「/p2」の後に数がありません"},
    // NoNumberBefore
    {"'/p1' has no number before '/p2'", "'/p1' hat keine Zahl vor '/p2'",
     "'/p1' n'a pas de nombre avant '/p2'", "「/p1」の「/p2」の前に数がありません"},
    // NoOperatorBehind
    {"'/p1' has no operator behind ')'", "'/p1' hat kein Rechenzeichen hinter ')'",
     "'/p1' n'a pas d'opérateur après ')'", "「/p1」の「)」の後に演算子がありません"},
    // NoOperatorBefore
    {"'/p1' has no operator before '('", "'/p1' hat kein Rechenzeichen vor '('",
     "'/p1' n'a pas d'opérateur avant '('", "「/p1」の「(」の前に演算子がありません"},
    // NotAUnit
    {"'/p1' is not a unit of /p2, which has /p3", "'/p1' ist keine Einheit für /p2; möglich sind /p3",
     "'/p1' n'est pas une unité pour /p2 ; unités possibles : /p3",
     "「/p1」は/p2の単位ではありません（使える単位: /p3）"},
    // NotAUnitWhereNoneExists
    {"'/p1' is not a unit of /p2, which has none", "'/p1' ist keine Einheit für /p2; es gibt dafür keine",
     "'/p1' n'est pas une unité pour /p2 ; il n'y en a aucune",
     "「/p1」は/p2の単位ではありません（/p2に単位はありません）"},
    // OtherMagnitude
    {"'/p1' gives no /p2", "'/p1' ergibt etwas anderes als /p2", "'/p1' ne donne pas /p2",
     "「/p1」の結果は/p2になりません"},
    // SecondUnit
    {"'/p1' has a unit behind what has one already",
     "'/p1' hat eine Einheit hinter etwas, das schon eine hat",
     "'/p1' a une unité après ce qui en a déjà une", "「/p1」では単位のあるものにさらに単位が付いています"},
    // UnlikeTerms
    {"'/p1' adds what does not belong together", "'/p1' addiert, was nicht zusammengehört",
     "'/p1' additionne ce qui ne va pas ensemble", "「/p1」は種類の異なるものを足しています"},
    // NumberWithoutUnit
    {"'/p1' has several units, and a number without one",
     "'/p1' hat mehrere Einheiten und eine Zahl ohne Einheit",
     "'/p1' a plusieurs unités et un nombre sans unité", "「/p1」には複数の単位と、単位のない数があります"},
    // DivisionByZero
    {"'/p1' divides by zero", "'/p1' teilt durch null", "'/p1' divise par zéro", "「/p1」は0で割っています"},
    // TooLarge
    {"'/p1' is too large", "'/p1' ist zu groß", "'/p1' est trop grand", "「/p1」は大きすぎます"},
    // TooSmall
    {"'/p1' is too small", "'/p1' ist zu klein", "'/p1' est trop petit", "「/p1」は小さすぎます"},
    // ValueNotTaken
    {"/p1 does not take the value", "/p1 nimmt den Wert nicht an", "/p1 n'accepte pas la valeur",
     "/p1はこの値を受け付けません"},
    // ReadOnly
    {"/p1 is read-only", "/p1 ist schreibgeschützt", "/p1 est en lecture seule", "/p1は読み取り専用です"},
    // NoSteps
    {"/p1 has no steps", "/p1 lässt sich nicht in Schritten ändern", "/p1 ne se modifie pas par pas",
     "/p1は段階的に変更できません"},
    // StepTooFar
    {"/p1 would be too large", "/p1 würde zu groß", "/p1 deviendrait trop grand",
     "/p1の値が大きくなりすぎます"},
    // StepNotTaken
    {"/p1 does not take /p2", "/p1 nimmt /p2 nicht an", "/p1 n'accepte pas /p2", "/p1は/p2を受け付けません"},
    // StepTooSmall
    {"/p1 is too large for steps of /p2", "/p1 ist zu groß für Schritte von /p2",
     "/p1 est trop grand pour des pas de /p2", "/p1は/p2ずつ変更するには大きすぎます"},
};
static_assert(std::size(sentences) == static_cast<std::size_t>(EntryText::StepTooSmall) + 1);

// The magnitudes of numbers, with the article that the sentences want before them.
constexpr Translated words[] = {
    {"LENGTH", "eine Länge", "une longueur", "長さ"},
    {"ANGLE", "einen Winkel", "un angle", "角度"},
    {"REAL", "eine Zahl", "un nombre", "実数"},
    {"INTEGER", "eine ganze Zahl", "un nombre entier", "整数"},
};

const char* InCurrentLanguage(const Translated& iTranslated) {
    const auto* const found =
        std::find(std::begin(languages), std::end(languages), MessageCatalogs::Language());
    return iTranslated.texts[found == std::end(languages) ? 0 : std::distance(languages, found)];
}

} // namespace

Outcome RefusedFor(EntryText iWhy, const std::vector<std::string>& iParameters) {
    const Translated& sentence = sentences[static_cast<std::size_t>(iWhy)];
    return Outcome::Refused(MessageCatalogs::Fill(InCurrentLanguage(sentence), iParameters));
}

std::string WordFor(const std::string& iMagnitude) {
    const auto* const found = std::find_if(std::begin(words), std::end(words), [&](const Translated& iWord) {
        return iMagnitude == iWord.texts[0];
    });
    return found == std::end(words) ? iMagnitude : InCurrentLanguage(*found);
}

} // namespace host
