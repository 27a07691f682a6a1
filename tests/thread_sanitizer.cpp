// Linked into the tests when they are built with the thread sanitizer.
//
// Qt is not built with it, so the sanitizer does not see the lock of Qt's event queues, and takes every value that goes
// to another thread by a queued call for a race. These functions tell it: what was done before a queued call was made
// is over when the call is delivered. They replace Qt's own of the same names and call them.

#include <QMetaObject>
#include <QObject>

#include <dlfcn.h>

extern "C" {
void __tsan_acquire(void *address);
void __tsan_release(void *address);

// Qt's own accesses, which the sanitizer sees in part (those through memcpy and the like), are not ours to judge.
const char *__tsan_default_options()
{
    return "ignore_noninstrumented_modules=1:halt_on_error=0:exitcode=66";
}
}

namespace {

char eventQueues; // stands for their locks

template <typename Function>
Function *qtsOwn(const char *mangledName)
{
    return reinterpret_cast<Function *>(dlsym(RTLD_NEXT, mangledName));
}

bool acquireBeforeDelivery(void **)
{
    __tsan_acquire(&eventQueues);
    return false; // the event goes on to its receiver
}

const bool registered = QInternal::registerCallback(QInternal::EventNotifyCallback, acquireBeforeDelivery);

} // namespace

// A signal is emitted.
void QMetaObject::activate(QObject *sender, const QMetaObject *metaObject, int signal, void **arguments)
{
    static const auto own =
        qtsOwn<void(QObject *, const QMetaObject *, int, void **)>("_ZN11QMetaObject8activateEP7QObjectPKS_iPPv");
    __tsan_release(&eventQueues);
    own(sender, metaObject, signal, arguments);
}

// A functor is invoked.
bool QMetaObject::invokeMethodImpl(
    QObject *object, QtPrivate::QSlotObjectBase *slot, Qt::ConnectionType type, void *result)
{
    static const auto own = qtsOwn<bool(QObject *, QtPrivate::QSlotObjectBase *, Qt::ConnectionType, void *)>(
        "_ZN11QMetaObject16invokeMethodImplEP7QObjectPN9QtPrivate15QSlotObjectBaseEN2Qt14ConnectionTypeEPv");
    __tsan_release(&eventQueues);
    return own(object, slot, type, result);
}
