// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Result.h"
#include "scripting/interpreter/HostObject.h"
#include "scripting/interpreter/Position.h"
#include "scripting/interpreter/Services.h"
#include "scripting/interpreter/Value.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace songsweep::interpreter {

/// The numbers that AppleScript gives to failures, for `on error number`.
enum class ErrorNumber : int {
    general = -2700,
    divisionByZero = -2701,
    undefinedVariable = -2753,
    cannotCoerce = -1700,
    noSuchObject = -1728,
    notUnderstood = -1708,
};

/// What a running text has: its variables, the objects it tells, its result, and what it may still spend.
///
/// Made for one run on one thread. Every node of the tree evaluates itself against it.
class Context {
  public:
    /// The services must outlive it; `texts` are those that the program has in quotes.
    Context(const Services& services, std::size_t variableCount, std::vector<std::string> texts)
        : m_services(services)
        , m_texts(std::move(texts))
        , m_variables(variableCount) {}
    Context(const Context&) = delete;
    Context& operator=(const Context&) = delete;
    ~Context();

    // Spending.

    /// Takes steps; false when they are used up, which ends the run.
    bool spend(std::size_t steps = 1);
    Error exhausted(Position position);
    bool isExhausted() const { return m_isExhausted; }

    // Failures. The place of the latest one is kept here, apart from its reason.

    Error fail(Position position, ErrorNumber number, std::string reason);
    Error fail(Position position, int number, std::string reason);
    /// The failure of an application, at a place of the text.
    Error fail(Position position, const Error& error);
    /// What an application answered to something at a place of the text.
    template <class Answer>
    Result<Answer> located(Position position, Result<Answer> answer) {
        if (!answer) return fail(position, answer.error());
        return answer;
    }
    Position errorPosition() const { return m_errorPosition; }
    int errorNumber() const { return m_errorNumber; }

    const Services& services() const { return m_services; }

    // Variables, by the number that the parser gave them.

    std::optional<Value>& variable(std::size_t slot) { return m_variables[slot]; }

    /// What stands in quotes, by the number that the parser gave it.
    const std::string& text(std::size_t number) const { return m_texts[number]; }

    /// The value of the last statement.
    std::optional<Value>& result() { return m_result; }

    // The object being told.

    HostApplication* application() const { return m_application; }
    const ObjectPointer& target() const { return m_target; }
    bool isFiltering() const { return m_isFiltering; }

    /// Tells an object, of this or of another application, until the end of a scope.
    class TargetScope {
      public:
        TargetScope(Context& context, ObjectPointer target, HostApplication* application);
        TargetScope(const TargetScope&) = delete;
        TargetScope& operator=(const TargetScope&) = delete;
        ~TargetScope();

      private:
        Context& m_context;
        ObjectPointer m_target;
        HostApplication* m_application;
        bool m_wasFiltering;
    };

    /// Makes the elements of a filter the target, one after another, until the end of a scope.
    class FilterScope {
      public:
        explicit FilterScope(Context& context);
        FilterScope(const FilterScope&) = delete;
        FilterScope& operator=(const FilterScope&) = delete;
        ~FilterScope();
        void look(const ObjectPointer& element) { m_context.m_target = element; }

      private:
        Context& m_context;
        ObjectPointer m_target;
        bool m_wasFiltering;
    };

    // Lists.

    /// A new list; an error when it is too long or lies too deep.
    Result<Value> makeList(Position position, std::vector<Value> items);

    /// Replaces an item of a list, counted from 0.
    void replaceInList(const ListPointer& list, std::size_t index, Value value);
    /// Adds an item before the one at `index`, counted from 0, or at the end.
    Result<void> insertInList(Position position, const ListPointer& list, std::size_t index, Value value);

  private:
    void track(const ListPointer& list, const Value& added);

    const Services& m_services;
    std::vector<std::string> m_texts;
    std::vector<std::optional<Value>> m_variables;
    std::optional<Value> m_result;
    ObjectPointer m_target;
    HostApplication* m_application = nullptr;
    std::size_t m_spent = 0; // in the fractions of a step that a filter's node costs
    Position m_errorPosition;
    int m_errorNumber = 0;
    bool m_isFiltering = false;
    bool m_isExhausted = false;
    // A list that was put into another one may hold itself; these are emptied one by one at the end.
    std::vector<ListPointer> m_trackedLists;
};

} // namespace songsweep::interpreter
