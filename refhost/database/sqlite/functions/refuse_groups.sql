-- Refuses a choice of stock groups: none at all (ML033), one that does not exist (ML030), one that does not lie under the
-- chosen one above it (ML034). An identifier that is null, 0 or negative leaves its level empty.
--
-- in: group1
-- in: group2
-- in: group3

select refuse('ML033')
where not (coalesce(:group1, 0) > 0 or coalesce(:group2, 0) > 0 or coalesce(:group3, 0) > 0);

with CHOSEN (LEVEL, ID) as (values (1, :group1), (2, :group2), (3, :group3))
select refuse('ML030', LEVEL, ID)
from CHOSEN c
where c.ID > 0 and not exists (select 1 from GROUP_V g where g.LEVEL = c.LEVEL and g.ID = c.ID)
order by c.LEVEL;

with CHOSEN (LEVEL, ID) as (values (1, :group1), (2, :group2), (3, :group3))
select refuse('ML034', low.LEVEL, low.NAZEV, high.NAZEV)
from CHOSEN c
join GROUP_V low on low.LEVEL = c.LEVEL and low.ID = c.ID
join GROUP_V high on high.LEVEL = (select max(a.LEVEL) from CHOSEN a where a.LEVEL < c.LEVEL and a.ID > 0)
                 and high.ID = (select a.ID from CHOSEN a where a.LEVEL = high.LEVEL)
where high.ID <> case high.LEVEL when 1 then low.SSP1ID else low.SSP2ID end
order by c.LEVEL;
