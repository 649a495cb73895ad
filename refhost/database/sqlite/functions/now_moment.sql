-- The moment of now where the company is: the parameter CASOVEPASMO of the section FIRMA, a name of the time zone
-- database, Europe/Prague without one.
--
-- Refusals: ML071 there is no such zone.

select moment_in(coalesce(typed(V_GetGlobalParam('FIRMA', 'CASOVEPASMO')), 'Europe/Prague'));
