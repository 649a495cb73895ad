-- The first day whose deliveries count when the company looks back for so many months from a moment; without a number
-- of months all do. The number may be a text.
--
-- Refusals: ML070 a number that is none.
--
-- in: moment
-- in: months

select case
           when :months is null then '0000-01-01'
           when as_integer(:months) between 0 and 1200 then months_before(:moment, as_integer(:months))
           else refuse('ML070', :months)
       end;
