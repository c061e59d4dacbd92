// The customary financial functions. Rate r per period, n periods, type t (1 payment at the beginning of the period,
// 0 at its end); money paid out is negative. Everything is double precision. What has no finite result raises error 5;
// where the plain formula divides by zero, error 11.
#pragma once

/// The payment per period of an annuity.
double Pmt(double rate, double periods, double presentValue, double futureValue = 0, int type = 0);

/// The part of the payment of period `period` (1 to periods) that repays the principal; error 5 outside.
double PPmt(double rate, double period, double periods, double presentValue, double futureValue = 0, int type = 0);

/// The value of an annuity after its last period.
double FV(double rate, double periods, double payment, double presentValue = 0, int type = 0);

/// The rate per period, by the secant method from `guess`, until less than 1e-7 is left of the annuity or, where its
/// growth is too large for that, nothing but rounding. Error 5 if it does not settle within 128 steps.
double Rate(double periods, double payment, double presentValue, double futureValue = 0, int type = 0,
            double guess = 0.1);
