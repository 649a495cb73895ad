-- The stock groups of all three levels, each with the groups above it.
create view GROUP_V as
select 1 as LEVEL, ID, NAZEV, ID as SSP1ID, null::integer as SSP2ID from SKUPSPOL1
union all
select 2, ID, NAZEV, SSP1ID, ID from SKUPSPOL2
union all
select 3, g.ID, g.NAZEV, u.SSP1ID, g.SSP2ID from SKUPSPOL3 g join SKUPSPOL2 u on u.ID = g.SSP2ID;

-- The groups of the third level with their place in the order of the names of all three levels. Fills sort by it, for the
-- server compares names by Czech rules slowly.
create view GROUP_PLACE_V as
select g3.ID as SSP3ID, row_number() over (order by g1.NAZEV, g2.NAZEV, g3.NAZEV) as PLACE
from SKUPSPOL3 g3
join SKUPSPOL2 g2 on g2.ID = g3.SSP2ID
join SKUPSPOL1 g1 on g1.ID = g2.SSP1ID;
