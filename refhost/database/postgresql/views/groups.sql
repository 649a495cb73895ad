-- The stock groups of all three levels, each with the groups above it.
create view GROUP_V as
select 1 as LEVEL, ID, NAZEV, ID as SSP1ID, null::integer as SSP2ID from SKUPSPOL1
union all
select 2, ID, NAZEV, SSP1ID, ID from SKUPSPOL2
union all
select 3, g.ID, g.NAZEV, u.SSP1ID, g.SSP2ID from SKUPSPOL3 g join SKUPSPOL2 u on u.ID = g.SSP2ID;
