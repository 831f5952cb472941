// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef TESTS_MODEL_METAOBJECTFACTS_H
#define TESTS_MODEL_METAOBJECTFACTS_H

#include <QObject>
#include <QTest>

#include <type_traits>

// A direct child of QObject that adds no signals, slots, properties or anything else to its meta-object.
template <typename T>
void verifyBareQObject(const char *className)
{
    static_assert(std::is_base_of_v<QObject, T>);
    static_assert(std::has_virtual_destructor_v<T>);
    static_assert(std::is_default_constructible_v<T> && std::is_constructible_v<T, QObject *>);

    T object;
    const QMetaObject *meta = object.metaObject();
    QCOMPARE(meta, &T::staticMetaObject);
    QCOMPARE(meta->className(), className);
    QCOMPARE(meta->superClass(), &QObject::staticMetaObject);
    QCOMPARE(meta->methodCount(), meta->methodOffset());
    QCOMPARE(meta->propertyCount(), meta->propertyOffset());
    QCOMPARE(meta->enumeratorCount(), meta->enumeratorOffset());
    QCOMPARE(meta->classInfoCount(), meta->classInfoOffset());
    QCOMPARE(meta->constructorCount(), 0);
    QCOMPARE(object.qt_metacast(className), static_cast<void *>(&object));
    QCOMPARE(T::tr("text"), QStringLiteral("text"));

    QCOMPARE(object.parent(), nullptr);
    QObject parent;
    const T child(&parent);
    QCOMPARE(child.parent(), &parent);
}

// A copy has no parent, name or dynamic properties; an assignment leaves those of both objects alone.
template <typename T>
void verifyQObjectPartIsNotCopied()
{
    static_assert(std::is_copy_constructible_v<T>);
    static_assert(std::is_same_v<decltype(std::declval<T &>() = std::declval<const T &>()), T &>);

    QObject parent;
    auto *source = new T(&parent);
    source->setObjectName(QStringLiteral("source"));
    source->setProperty("tag", 7);

    const T copy(*source);
    QCOMPARE(copy.parent(), nullptr);
    QCOMPARE(copy.objectName(), QString());
    QVERIFY(copy.dynamicPropertyNames().isEmpty());

    QObject otherParent;
    auto *target = new T(&otherParent);
    target->setObjectName(QStringLiteral("target"));
    QCOMPARE(&(*target = *source), target);
    QCOMPARE(target->parent(), &otherParent);
    QCOMPARE(target->objectName(), QStringLiteral("target"));
    QVERIFY(target->dynamicPropertyNames().isEmpty());

    QCOMPARE(source->parent(), &parent);
    QCOMPARE(source->objectName(), QStringLiteral("source"));
}

// Copies and assignments take what fill() sets and isFilled() asks for, change() does not reach from one to another,
// and an assignment to itself changes nothing.
template <typename T>
void verifyPayloadIsCopied(void (*fill)(T &), bool (*isFilled)(const T &), void (*change)(T &))
{
    verifyQObjectPartIsNotCopied<T>();
    QObject parent;
    auto *source = new T(&parent);
    fill(*source);
    QVERIFY(isFilled(*source));
    T copy(*source);
    QVERIFY(isFilled(copy));
    T target;
    target = *source;
    QVERIFY(isFilled(target));
    change(target);
    QVERIFY(!isFilled(target));
    QVERIFY(isFilled(*source) && isFilled(copy));
    change(*source);
    QVERIFY(isFilled(copy));

    fill(*source);
    const T &alias = *source;
    QCOMPARE(&(*source = alias), source);
    QVERIFY(isFilled(*source));
    QCOMPARE(source->parent(), &parent);
}

#endif // TESTS_MODEL_METAOBJECTFACTS_H
