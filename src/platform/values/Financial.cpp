#include "platform/values/Financial.h"

#include "platform/values/RuntimeError.h"

#include <cmath>
#include <limits>

namespace {

/// (1 + rate)^periods - 1, without losing the digits of a small rate. At -100 % and below only the plain power is left.
double GrowthLessOne(double rate, double periods)
{
    return rate > -1 ? std::expm1(periods * std::log1p(rate)) : std::pow(1 + rate, periods) - 1;
}

/// What payments of 1 at the end of each period grow to. At a rate of 0 it is their number, the formula's limit.
double AnnuityFactor(double rate, double periods)
{
    return rate == 0 ? periods : GrowthLessOne(rate, periods) / rate;
}

double Finite(double value)
{
    if (!std::isfinite(value))
        RaiseError(RuntimeError::InvalidProcedureCall);
    return value;
}

double Quotient(double dividend, double divisor)
{
    if (divisor == 0)
        RaiseError(RuntimeError::DivisionByZero);
    return Finite(dividend / divisor);
}

/// What is left of an annuity after its last period; it is 0 at the rate that is looked for.
double Remainder(double rate, double periods, double payment, double presentValue, double futureValue, int type)
{
    return Finite(presentValue * (GrowthLessOne(rate, periods) + 1) +
                  payment * (1 + rate * type) * AnnuityFactor(rate, periods) + futureValue);
}

} // namespace

double Pmt(double rate, double periods, double presentValue, double futureValue, int type)
{
    if (periods == 0)
        RaiseError(RuntimeError::InvalidProcedureCall);
    if (rate == 0)
        return Finite(-(presentValue + futureValue) / periods);
    const double growth = Finite(GrowthLessOne(rate, periods) + 1);
    return -Quotient(futureValue + presentValue * growth, (1 + rate * type) * AnnuityFactor(rate, periods));
}

double FV(double rate, double periods, double payment, double presentValue, int type)
{
    return Finite(-presentValue * (GrowthLessOne(rate, periods) + 1) -
                  payment * (1 + rate * type) * AnnuityFactor(rate, periods));
}

double PPmt(double rate, double period, double periods, double presentValue, double futureValue, int type)
{
    if (!(period >= 1 && period <= periods))
        RaiseError(RuntimeError::InvalidProcedureCall);
    const double payment = Pmt(rate, periods, presentValue, futureValue, type);
    // A payment at the beginning of the first period comes before any interest.
    if (type != 0 && period == 1)
        return payment;
    // FV gives the balance at the start of the period with the sign of a payment.
    double interest = FV(rate, period - 1, payment, presentValue, type) * rate;
    if (type != 0)
        interest = Quotient(interest, 1 + rate);
    return Finite(payment - interest);
}

double Rate(double periods, double payment, double presentValue, double futureValue, int type, double guess)
{
    constexpr int StepLimit = 128;
    constexpr double Tolerance = 1e-7;
    constexpr double Nudge = 1e-5; // parts two points of equal height, whose secant would never meet the axis
    constexpr double Epsilon = std::numeric_limits<double>::epsilon();

    if (!(periods > 0))
        RaiseError(RuntimeError::InvalidProcedureCall);
    const auto remainderAt = [&](double rate) {
        return Remainder(rate, periods, payment, presentValue, futureValue, type);
    };
    double older = guess;
    double olderRemainder = remainderAt(older);
    double newer = olderRemainder > 0 ? guess / 2 : guess * 2;
    double newerRemainder = remainderAt(newer);
    for (int step = 0; step < StepLimit; ++step) {
        if (newerRemainder == olderRemainder) {
            older += newer > older ? -Nudge : Nudge;
            olderRemainder = remainderAt(older);
            if (newerRemainder == olderRemainder)
                break; // level ground: every rate is as good, or as bad
        }
        const double next = Finite(newer - (newer - older) * newerRemainder / (newerRemainder - olderRemainder));
        older = newer;
        olderRemainder = newerRemainder;
        newer = next;
        newerRemainder = remainderAt(newer);
        // A dear long loan grows so large that rounding alone is beyond the tolerance. Nothing but that is left then.
        const double rounding = 8 * Epsilon * std::abs(presentValue) * (GrowthLessOne(newer, periods) + 1);
        if (std::abs(newerRemainder) >= Tolerance && std::abs(newerRemainder) > rounding)
            continue;
        if (newer <= -1) // the formula has zeros there, but no period loses more than everything
            break;
        return newer;
    }
    RaiseError(RuntimeError::InvalidProcedureCall);
}
