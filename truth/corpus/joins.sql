-- Joins and lists of tables.
select p.label, c.label from parent p join child c on p.id = c.parent_id
select * from parent p join child c on p.id = c.parent_id
select p.id, c.id from parent p join child c on p.id = c.parent_id and c.weight > 1
select p.id, c.id from parent p join child c on p.label = c.label where p.size is not null
select parent.id, child.id from parent join child using (id)
select * from parent join child using (id)
select * from parent join child using (id, label)
select label from parent join child using (label)
select count(*) from parent join child on true
select p.label, c.label from parent p inner join child c on p.id = c.parent_id
select * from parent p inner join child c on p.id = c.parent_id
select p.id, c.id from parent p inner join child c on p.id = c.parent_id and c.weight > 1
select p.id, c.id from parent p inner join child c on p.label = c.label where p.size is not null
select parent.id, child.id from parent inner join child using (id)
select * from parent inner join child using (id)
select * from parent inner join child using (id, label)
select label from parent inner join child using (label)
select count(*) from parent inner join child on true
select p.label, c.label from parent p left join child c on p.id = c.parent_id
select * from parent p left join child c on p.id = c.parent_id
select p.id, c.id from parent p left join child c on p.id = c.parent_id and c.weight > 1
select p.id, c.id from parent p left join child c on p.label = c.label where p.size is not null
select parent.id, child.id from parent left join child using (id)
select * from parent left join child using (id)
select * from parent left join child using (id, label)
select label from parent left join child using (label)
select count(*) from parent left join child on true
select p.label, c.label from parent p left outer join child c on p.id = c.parent_id
select * from parent p left outer join child c on p.id = c.parent_id
select p.id, c.id from parent p left outer join child c on p.id = c.parent_id and c.weight > 1
select p.id, c.id from parent p left outer join child c on p.label = c.label where p.size is not null
select parent.id, child.id from parent left outer join child using (id)
select * from parent left outer join child using (id)
select * from parent left outer join child using (id, label)
select label from parent left outer join child using (label)
select count(*) from parent left outer join child on true
select p.label, c.label from parent p right join child c on p.id = c.parent_id
select * from parent p right join child c on p.id = c.parent_id
select p.id, c.id from parent p right join child c on p.id = c.parent_id and c.weight > 1
select p.id, c.id from parent p right join child c on p.label = c.label where p.size is not null
select parent.id, child.id from parent right join child using (id)
select * from parent right join child using (id)
select * from parent right join child using (id, label)
select label from parent right join child using (label)
select count(*) from parent right join child on true
select p.label, c.label from parent p right outer join child c on p.id = c.parent_id
select * from parent p right outer join child c on p.id = c.parent_id
select p.id, c.id from parent p right outer join child c on p.id = c.parent_id and c.weight > 1
select p.id, c.id from parent p right outer join child c on p.label = c.label where p.size is not null
select parent.id, child.id from parent right outer join child using (id)
select * from parent right outer join child using (id)
select * from parent right outer join child using (id, label)
select label from parent right outer join child using (label)
select count(*) from parent right outer join child on true
select p.label, c.label from parent p full join child c on p.id = c.parent_id
select * from parent p full join child c on p.id = c.parent_id
select p.id, c.id from parent p full join child c on p.id = c.parent_id and c.weight > 1
select p.id, c.id from parent p full join child c on p.label = c.label where p.size is not null
select parent.id, child.id from parent full join child using (id)
select * from parent full join child using (id)
select * from parent full join child using (id, label)
select label from parent full join child using (label)
select count(*) from parent full join child on true
select p.label, c.label from parent p full outer join child c on p.id = c.parent_id
select * from parent p full outer join child c on p.id = c.parent_id
select p.id, c.id from parent p full outer join child c on p.id = c.parent_id and c.weight > 1
select p.id, c.id from parent p full outer join child c on p.label = c.label where p.size is not null
select parent.id, child.id from parent full outer join child using (id)
select * from parent full outer join child using (id)
select * from parent full outer join child using (id, label)
select label from parent full outer join child using (label)
select count(*) from parent full outer join child on true
select * from parent natural join child
select label from parent natural join child
select * from parent natural left join child
select label from parent natural left join child
select * from parent natural right join child
select label from parent natural right join child
select * from parent natural full join child
select label from parent natural full join child
select * from parent natural inner join child
select label from parent natural inner join child
select * from parent cross join child
select p.id, c.id from parent p cross join child c where p.id = c.id
select * from parent, child
select p.label from parent p, child c where p.id = c.parent_id
select p.label, c.label, k.v from parent p, child c, kind k where p.id = c.parent_id and k.id = c.id
select p.label from parent as p, child as c where p.id = c.parent_id order by p.label
select a.label, b.label from parent a join parent b on a.id = b.id + 1
select k.id, p.id from kind k, parent p left join child c on p.id = c.parent_id where k.id = 1
select p.label, c.label, k.id from parent p join child c on p.id = c.parent_id join kind k on k.id = c.id
select p.label, c.label, k.id from parent p left join child c on p.id = c.parent_id left join kind k on k.id = c.id order by p.label, c.label
select p.*, c.weight from parent p join child c on p.id = c.parent_id
select c.*, p.* from parent p join child c on p.id = c.parent_id
select distinct p.label from parent p join child c on p.id = c.parent_id
select p.id, count(c.id) from parent p left join child c on p.id = c.parent_id group by p.id order by p.id
select p.id, sum(c.weight) from parent p left join child c on p.id = c.parent_id group by p.id
select p.id, c.id from parent p join child c on p.id < c.id
select p.id from parent p left join child c on p.id = c.parent_id where c.id is null
select p.label from parent p join child c on p.label = c.label and c.weight is not null
select a.w, b.w from word a join word b on a.w = b.w and a.id < b.id
select * from parent p inner join child c on (p.id = c.parent_id) order by c.id
select p.id, c.id from parent p join child c on p.id is distinct from c.parent_id
select 1 from parent
select p.label from parent p full join child c on p.id = c.parent_id where p.id is null
select x.id from parent x right join child y using (id) order by y.id
