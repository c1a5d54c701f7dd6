// SPDX-License-Identifier: MIT
#include "scripting/interpreter/ast/ElementSet.h"

#include "scripting/interpreter/Coercion.h"
#include "scripting/interpreter/Comparing.h"
#include "scripting/interpreter/Try.h"
#include "scripting/interpreter/ast/Operators.h"

#include <limits>

namespace songsweep::interpreter {
namespace {

using Objects = std::vector<ObjectPointer>;

/// The walk over one set: what its steps have in common.
class Walk {
  public:
    Walk(Context& context, Position position, const ElementSet& set)
        : m_context(context)
        , m_position(position)
        , m_container(*set.container)
        , m_class(set.elementClass)
        , m_filter(set.filter) {}

    /// The class as the container's application numbers it.
    Result<TermCode> code() const;
    Result<std::int64_t> count() const;
    Result<ObjectPointer> element(std::int64_t index) const;
    Result<void> visitRange(std::int64_t first, std::int64_t last, const ElementVisitor& visit) const;
    Result<void> visitMatches(const ElementVisitor& visit) const;
    Result<std::optional<Candidates>> candidates(const PropertyTest& test) const;
    Result<void> visitAll(const std::optional<Candidates>& candidates, const ElementVisitor& visit) const;

  private:
    Result<std::optional<Candidates>> filterCandidates() const;
    Result<bool> matches(const ObjectPointer& element) const;

    Context& m_context;
    Position m_position;
    HostObject& m_container;
    ClassReference m_class;
    const Expression* m_filter;
};

Result<TermCode> Walk::code() const {
    if (&m_container.terminology() == m_class.origin) return m_class.term->code;
    if (const ClassTerm* const term = m_container.terminology().elementClass(m_class.term->singular)) {
        return term->code;
    }
    return m_context.fail(m_position, ErrorNumber::noSuchObject,
                          m_container.specifier() + " has no " + m_class.term->plural);
}

Result<std::int64_t> Walk::count() const {
    TRY(const TermCode classCode, code());
    TRY(const std::size_t count, m_context.located(m_position, m_container.count(classCode)));
    return static_cast<std::int64_t>(count);
}

Result<ObjectPointer> Walk::element(std::int64_t index) const {
    TRY(const TermCode classCode, code());
    return m_context.located(m_position, m_container.element(classCode, static_cast<std::size_t>(index)));
}

Result<std::optional<Candidates>> Walk::candidates(const PropertyTest& test) const {
    TRY(const TermCode classCode, code());
    return m_context.located(m_position, m_container.candidates(classCode, test));
}

Result<std::optional<Candidates>> Walk::filterCandidates() const {
    std::vector<const CompareExpression*> tests;
    m_filter->collectTests(tests);
    for (const CompareExpression* const test : tests) {
        TRY(const std::optional<PropertyTest>& plain,
            test->propertyTest(m_context, m_container.terminology()));
        if (!plain) continue;
        TRY(std::optional<Candidates> && found, candidates(*plain));
        if (!found) continue;
        // An index answers for one test; what else the filter asks is not settled by it.
        if (test != m_filter) found->certainty = Candidates::Certainty::tentative;
        return std::move(found);
    }
    return std::optional<Candidates>();
}

Result<bool> Walk::matches(const ObjectPointer& element) const {
    Context::FilterScope scope(m_context);
    scope.look(element);
    TRY(const Value& verdict, m_filter->evaluate(m_context));
    // A test of a value that an element does not have says neither yes nor no.
    if (std::holds_alternative<MissingValue>(verdict)) return false;
    return truthOf(m_context, m_position, verdict);
}

Result<void> Walk::visitRange(std::int64_t first, std::int64_t last, const ElementVisitor& visit) const {
    for (std::int64_t index = first; index <= last; ++index) {
        if (!m_context.spend()) return m_context.exhausted(m_position);
        TRY(const ObjectPointer& current, element(index));
        TRY(const bool goesOn, visit(current));
        if (!goesOn) break;
    }
    return {};
}

Result<void> Walk::visitAll(const std::optional<Candidates>& candidates, const ElementVisitor& visit) const {
    if (!candidates) {
        TRY(const std::int64_t end, count());
        return visitRange(1, end, visit);
    }
    for (const ObjectPointer& candidate : candidates->objects) {
        if (!m_context.spend()) return m_context.exhausted(m_position);
        TRY(const bool goesOn, visit(candidate));
        if (!goesOn) break;
    }
    return {};
}

Result<void> Walk::visitMatches(const ElementVisitor& visit) const {
    TRY(const std::optional<Candidates>& candidates, filterCandidates());
    const bool isSettled = candidates && candidates->certainty == Candidates::Certainty::exact;
    if (isSettled) return visitAll(candidates, visit);
    return visitAll(candidates, [&](const ObjectPointer& element) -> Result<bool> {
        TRY(const bool matching, matches(element));
        return matching ? visit(element) : true;
    });
}

Error noSuchElement(Context& context, Position position, const ElementSet& set, const std::string& which) {
    return context.fail(position, ErrorNumber::noSuchObject,
                        "there is no " + set.elementClass.term->singular + " " + which);
}

Result<Objects> allOf(Context& context, Position position, const ElementSet& set) {
    Objects objects;
    const Result<void> walked = forEachElement(context, position, set, [&](const ObjectPointer& element) {
        objects.push_back(element);
        return Result<bool>(true);
    });
    if (!walked) return walked.error();
    return objects;
}

/// `tracks 2 thru 5`, which no filter follows: every element of the range has to be there.
Result<void> forEachInRange(Context& context, Position position, const ElementSet& set,
                            const ElementVisitor& visit) {
    const Walk walk(context, position, set);
    TRY(const std::int64_t count, walk.count());
    const std::int64_t first = fromBeginning(set.first, count);
    const std::int64_t last = fromBeginning(set.last, count);
    if (first < 1 || last > count || first > last) {
        return noSuchElement(context, position, set, "in all of that range");
    }
    return walk.visitRange(first, last, visit);
}

Result<ObjectPointer> matchingElementAt(Context& context, Position position, const ElementSet& set,
                                        std::int64_t index) {
    ObjectPointer found;
    std::int64_t seen = 0;
    const Result<void> walked = forEachElement(context, position, set, [&](const ObjectPointer& element) {
        if (++seen == index) found = element;
        return Result<bool>(found == nullptr);
    });
    if (!walked) return walked.error();
    if (!found) return noSuchElement(context, position, set, std::to_string(index));
    return found;
}

} // namespace

Result<void> forEachElement(Context& context, Position position, const ElementSet& set,
                            const ElementVisitor& visit) {
    if (!set.isWhole()) return forEachInRange(context, position, set, visit);
    const Walk walk(context, position, set);
    return set.filter ? walk.visitMatches(visit) : walk.visitAll({}, visit);
}

Result<std::int64_t> countOf(Context& context, Position position, const ElementSet& set) {
    if (set.isWhole() && !set.filter) return Walk(context, position, set).count();
    std::int64_t count = 0;
    const Result<void> walked = forEachElement(context, position, set, [&](const ObjectPointer&) {
        ++count;
        return Result<bool>(true);
    });
    if (!walked) return walked.error();
    return count;
}

Result<ObjectPointer> elementAt(Context& context, Position position, const ElementSet& set,
                                std::int64_t index) {
    if (index > 0 && (set.filter || !set.isWhole())) return matchingElementAt(context, position, set, index);
    if (set.filter || !set.isWhole()) {
        TRY(const Objects& all, allOf(context, position, set));
        const std::int64_t place = fromBeginning(index, static_cast<std::int64_t>(all.size()));
        if (place < 1) return noSuchElement(context, position, set, std::to_string(index));
        return all[static_cast<std::size_t>(place) - 1];
    }
    const Walk walk(context, position, set);
    TRY(const std::int64_t count, walk.count());
    const std::int64_t place = fromBeginning(index, count);
    if (place < 1 || place > count) return noSuchElement(context, position, set, std::to_string(index));
    return walk.element(place);
}

Result<ObjectPointer> elementBy(Context& context, Position position, const ElementSet& set,
                                std::string_view propertyName, const Value& value) {
    const PropertyTerm* const term = set.container->terminology().property(propertyName);
    if (!term) return noSuchElement(context, position, set, "by " + std::string(propertyName));
    const Walk walk(context, position, set);
    TRY(const std::optional<Candidates>& candidates, walk.candidates({term->code, Comparison::equal, value}));
    ObjectPointer found;
    const Result<void> walked = walk.visitAll(candidates, [&](const ObjectPointer& element) -> Result<bool> {
        TRY(const Value& property, context.located(position, element->property(term->code)));
        TRY(const bool same, compared(context, position, Comparison::equal, property, value));
        if (same) found = element;
        return !same;
    });
    if (!walked) return walked.error();
    if (found) return found;
    TRY(const std::string& text, textOf(context, position, value));
    return noSuchElement(context, position, set, "“" + text + "”");
}

Result<Value> listOf(Context& context, Position position, const ElementSet& set) {
    TRY(const Objects& objects, allOf(context, position, set));
    std::vector<Value> items(objects.begin(), objects.end());
    return context.makeList(position, std::move(items));
}

} // namespace songsweep::interpreter
