// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_TESTS_REFERENCE_HASMEMBER_H
#define CEIECHART_TESTS_REFERENCE_HASMEMBER_H

#include <type_traits>

/*!
 * \brief Defines Has_name<T>: whether T has a member of that name.
 *
 * The member can be overloaded, public or private, declared in T or inherited. The test derives from T and from a class
 * with a member of the same name: the name is ambiguous if T has it, whatever kind of member it is.
 */
#define DEFINE_HAS_MEMBER(name)                                                                                        \
    template <class T>                                                                                                 \
    class Has_##name {                                                                                                 \
        struct Other {                                                                                                 \
            int name;                                                                                                  \
        };                                                                                                             \
        struct Both : T, Other { };                                                                                    \
        template <class U>                                                                                             \
        static std::false_type test(decltype(&U::name) *);                                                             \
        template <class U>                                                                                             \
        static std::true_type test(...);                                                                               \
                                                                                                                       \
    public:                                                                                                            \
        static constexpr bool value = decltype(test<Both>(nullptr))::value;                                            \
    };

/*! \brief Compilation fails unless the current class has a member \a name and the legacy class has none. */
#define ONLY_IN_THE_CURRENT_CLASS(name, Current, Legacy)                                                               \
    static_assert(Has_##name<Current>::value && !Has_##name<Legacy>::value, "only in the current class: " #name)

namespace reference {

template <class Void, template <class...> class Operation, class... Arguments>
struct IsDetected : std::false_type {
};
template <template <class...> class Operation, class... Arguments>
struct IsDetected<std::void_t<Operation<Arguments...>>, Operation, Arguments...> : std::true_type {
};

/*! \brief Whether \a Operation, an alias for the type of a call, can be formed with \a Arguments. */
template <template <class...> class Operation, class... Arguments>
constexpr bool isDetected = IsDetected<void, Operation, Arguments...>::value;

} // namespace reference

#endif // CEIECHART_TESTS_REFERENCE_HASMEMBER_H
