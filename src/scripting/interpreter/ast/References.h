// SPDX-License-Identifier: MIT
#pragma once

#include "scripting/interpreter/ast/Expression.h"

#include <functional>
#include <string>

namespace songsweep::interpreter {

/// An expression that leads to objects or to parts of a value. Its value is what it leads to.
class Reference : public Expression {
  public:
    using Expression::Expression;

  protected:
    Result<Value> compute(Context& context) const final;
    Result<Referent> computeReferent(Context& context) const override = 0;
};

/// `it`: the object being told, and in a filter the element looked at.
class TargetReference final : public Reference {
  public:
    explicit TargetReference(Position position)
        : Reference(position, 1) {}

  protected:
    Result<Referent> computeReferent(Context& context) const override;
};

/// `application "iTunes"`.
class ApplicationReference final : public Reference {
  public:
    ApplicationReference(Position position, const Applications::Entry& application)
        : Reference(position, 1)
        , m_application(application) {}

    bool dependsOnTarget() const override { return false; }
    const Applications::Entry* namedApplication() const override { return &m_application; }

  protected:
    Result<Referent> computeReferent(Context& context) const override;

  private:
    const Applications::Entry& m_application;
};

/// A reference inside another object: `x of container`. Without a container it is one of the object told.
class ContainedReference : public Reference {
  public:
    /// `depth` is that of what else is below the node.
    ContainedReference(Position position, int depth, ExpressionPointer container)
        : Reference(position, std::max(depth, depthAbove(container)))
        , m_container(std::move(container)) {}

    bool dependsOnTarget() const override { return !m_container || m_container->dependsOnTarget(); }

  protected:
    const Expression* container() const { return m_container.get(); }

    /// What the container leads to.
    Result<Referent> resolveContainer(Context& context) const;

    /// The object that a value is or stands for.
    Result<ObjectPointer> objectOf(Context& context, const Value& value) const;

    /// What is inside of each: of one value one, of elements (and of what was gathered before) a list.
    using Inside = std::function<Result<Referent>(const Value&)>;
    Result<Referent> insideEach(Context& context, const Referent& containers, const Inside& inside) const;

  private:
    Result<Referent> insideElements(Context& context, const ElementSet& elements, const Inside& inside) const;
    Result<Referent> insideItems(Context& context, const std::vector<Value>& items,
                                 const Inside& inside) const;
    Result<Value> insideOne(Context& context, const Value& value, const Inside& inside) const;
    Result<Referent> gathered(Context& context, std::vector<Value> values) const;

    ExpressionPointer m_container;
};

/// `name of x`: a property of an object, or of a text, a list or a date.
class PropertyReference final : public ContainedReference {
  public:
    /// `origin` and `term` are null for a word that the application told does not know; what the object
    /// itself says to the name is seen when it is asked.
    PropertyReference(Position position, std::string name, const Terminology* origin,
                      const PropertyTerm* term, ExpressionPointer container)
        : ContainedReference(position, 1, std::move(container))
        , m_name(std::move(name))
        , m_origin(origin)
        , m_term(term) {}

    bool isAssignable() const override { return true; }
    Result<void> assign(Context& context, const Value& value) const override;
    std::optional<TermCode> ownProperty(const Terminology& words) const override;

    /// The property of that value, whatever the container.
    Result<Value> propertyOf(Context& context, const Value& value) const;

  protected:
    Result<Referent> computeReferent(Context& context) const override;

  private:
    Result<TermCode> codeFor(Context& context, const HostObject& object) const;
    std::optional<TermCode> codeIn(const Terminology& words) const;

    std::string m_name;
    const Terminology* m_origin;
    const PropertyTerm* m_term;
};

/// `{name, artist} of x`: several properties of an object; of several objects a list for each property. They
/// are asked for object by object, so that an application reads each of them once.
class PropertiesReference final : public ContainedReference {
  public:
    using Properties = std::vector<std::unique_ptr<const PropertyReference>>;

    PropertiesReference(Position position, Properties properties, ExpressionPointer container)
        : ContainedReference(position, 2, std::move(container))
        , m_properties(std::move(properties)) {}

  protected:
    Result<Referent> computeReferent(Context& context) const override;

  private:
    using Columns = std::vector<std::vector<Value>>;
    Result<Value> columnsOf(Context& context, const ElementSet& elements) const;
    Result<Value> valuesIn(Context& context, const Referent& containers) const;

    Properties m_properties;
};

/// `POSIX path of x`.
class PosixPathReference final : public ContainedReference {
  public:
    PosixPathReference(Position position, ExpressionPointer container)
        : ContainedReference(position, 1, std::move(container)) {}

  protected:
    Result<Referent> computeReferent(Context& context) const override;
};

/// Which of several.
struct Selector {
    enum class Kind { every, index, name, id, middle, range };
    Kind kind = Kind::every;
    ExpressionPointer first; ///< the index, the name, the id, or the beginning of the range
    ExpressionPointer last;  ///< the end of the range
};

/// `track 1 of x`, `every track of x whose …`, `playlist "name"`.
class ElementReference final : public ContainedReference {
  public:
    ElementReference(Position position, ClassReference elementClass, Selector selector,
                     ExpressionPointer filter, ExpressionPointer container)
        : ContainedReference(position, depthAbove(selector.first, selector.last, filter),
                             std::move(container))
        , m_class(elementClass)
        , m_selector(std::move(selector))
        , m_filter(std::move(filter)) {}

  protected:
    Result<Referent> computeReferent(Context& context) const override;

  private:
    Result<Referent> selectedFrom(Context& context, const ElementSet& set) const;
    Result<Referent> rangeOf(Context& context, ElementSet set) const;
    Result<ObjectPointer> elementOf(Context& context, const ElementSet& set) const;
    Result<ObjectPointer> indexedOf(Context& context, const ElementSet& set) const;

    ClassReference m_class;
    Selector m_selector;
    ExpressionPointer m_filter;
};

/// `item 2 of x`, `items 1 thru 3 of x`, `character 1 of x`: of a list, a text or elements.
class ItemReference final : public ContainedReference {
  public:
    ItemReference(Position position, Selector selector, ExpressionPointer container)
        : ContainedReference(position, depthAbove(selector.first, selector.last), std::move(container))
        , m_selector(std::move(selector)) {}

    bool isAssignable() const override { return m_selector.kind == Selector::Kind::index; }
    Result<void> assign(Context& context, const Value& value) const override;

  protected:
    Result<Referent> computeReferent(Context& context) const override;

  private:
    struct Range {
        std::size_t begin; ///< counted from 0
        std::size_t end;   ///< the one after the last
    };
    Result<Range> rangeIn(Context& context, std::int64_t count) const;
    Result<Value> selectedFrom(Context& context, const Value& value) const;
    Result<Value> selectedItems(Context& context, const std::vector<Value>& items) const;
    Result<Value> selectedCharacters(Context& context, const std::string& text) const;

    Selector m_selector;
};

/// `end of x`, `beginning of x`: where `set` puts something into a list.
class InsertionReference final : public ContainedReference {
  public:
    enum class Place { beginning, end };
    InsertionReference(Position position, Place place, ExpressionPointer container)
        : ContainedReference(position, 1, std::move(container))
        , m_place(place) {}

    bool isAssignable() const override { return true; }
    Result<void> assign(Context& context, const Value& value) const override;

  protected:
    Result<Referent> computeReferent(Context& context) const override;

  private:
    Place m_place;
};

} // namespace songsweep::interpreter
